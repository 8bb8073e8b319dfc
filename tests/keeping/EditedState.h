#pragma once

#include "design/ParameterId.h"
#include "store/Manager.h"
#include "tables/WellModel.h"

#include <optional>

/// The states of the project that a program of the tests goes through, by number: each differs from
/// all others in its name, a value and the place of a well, so that a mixture of two is none.
namespace EditedState {

inline QString name(int state) {
  return QStringLiteral("State %1").arg(state);
}

inline double gradient(int state) {
  return 1e-3 * (state % 997 + 1);
}

/// What a user types to get to a state.
inline void type(TVR::Data::Manager& store, int state) {
  store.setValue(TVR::Parameter::ProjectName, name(state));
  store.setValue(TVR::Parameter::GroundwaterGradient, gradient(state));
  TVR::WellModel& wells = *store.wellModel();
  wells.setData(wells.index(1, TVR::WellModel::X), 40 + 1e-3 * state);
}

/// The number of the state in the store; none if it is none of these.
inline std::optional<int> of(TVR::Data::Manager& store) {
  using namespace TVR::Parameter;
  const QString title = store.value(ProjectName).toString();
  const int state = title.section(' ', -1).toInt();
  const TVR::WellModel& wells = *store.wellModel();
  const double x = wells.index(1, TVR::WellModel::X).data(Qt::EditRole).toDouble();
  const bool isWhole = title == name(state) &&
                       store.value(GroundwaterGradient).toDouble() == gradient(state) &&
                       x == 40 + 1e-3 * state;
  return isWhole ? std::optional(state) : std::nullopt;
}

} // namespace EditedState
