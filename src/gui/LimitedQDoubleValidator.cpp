#include "gui/LimitedQDoubleValidator.h"

namespace BrenvikTools {

QValidator::State LimitedQDoubleValidator::validate(QString& text, int& position) const {
  const State state = QDoubleValidator::validate(text, position);
  const bool hasTwoExponents = text.count('e', Qt::CaseInsensitive) > 1;
  return state == Intermediate && hasTwoExponents ? Invalid : state;
}

} // namespace BrenvikTools
