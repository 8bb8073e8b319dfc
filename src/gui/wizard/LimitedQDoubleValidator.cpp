#include "gui/wizard/LimitedQDoubleValidator.h"

namespace BrenvikTools {

QValidator::State LimitedQDoubleValidator::limited(State answer, const QString& text) {
  const bool hasTwoExponents = text.count('e', Qt::CaseInsensitive) > 1;
  return answer == Intermediate && hasTwoExponents ? Invalid : answer;
}

QValidator::State LimitedQDoubleValidator::validate(QString& text, int& position) const {
  const State answer = QDoubleValidator::validate(text, position);
  return limited(answer, text);
}

} // namespace BrenvikTools
