#pragma once

#include <QDoubleValidator>

namespace BrenvikTools {

/// The validator of all fields that take a number: a QDoubleValidator that refuses a second
/// exponent letter ("e" and "E" counted together), behind which no number can come any more.
class LimitedQDoubleValidator : public QDoubleValidator {
  Q_OBJECT

public:
  using QDoubleValidator::QDoubleValidator;

  State validate(QString& text, int& position) const override;
};

} // namespace BrenvikTools
