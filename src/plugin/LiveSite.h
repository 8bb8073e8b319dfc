#pragma once

#include "gui/editor/PropertyEdits.h"
#include "results/Isolines.h"
#include "simulation/OutputTimes.h"
#include "simulation/SiteInput.h"

#include <QPointF>
#include <QString>

#include <functional>
#include <optional>

namespace TVR {

namespace Data {
class Manager;
}

/// What a run of a project would be made of after some edits, and how its results would be drawn.
struct LiveSite {
  SiteInput site;
  OutputTimes outputTimes;
  IsothermChoice isotherms;
  QString fault; ///< why it would not be run; empty if it would
};

/// Where the page of a project puts the wells that nobody gave a place; none if it leaves them.
using PlaceOfNewWells = std::function<std::optional<QPointF>(const ProjectReader&)>;

/// Applies the edits to a copy of the project, with all rules that run for them; `store` stays as
/// it is. `cycleLength`: see outputTimeInput.
LiveSite liveSite(const Data::Manager& store, const GUI::PropertyEdits& edits, int cycleLength,
                  const PlaceOfNewWells& placeOfNewWells);

} // namespace TVR
