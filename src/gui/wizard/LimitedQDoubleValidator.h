#pragma once

#include <QDoubleValidator>

namespace BrenvikTools {

/// The validator of all fields that take a number: a QDoubleValidator that refuses a second
/// exponent letter ("e" and "E" counted together), behind which no number can come any more.
class LimitedQDoubleValidator : public QDoubleValidator {
  Q_OBJECT

public:
  using QDoubleValidator::QDoubleValidator;

  /// What becomes of the base class's answer to a text. (That of Qt 5.15 refuses by itself what
  /// earlier ones took for the beginning of a number.)
  static State limited(State answer, const QString& text);

  State validate(QString& text, int& position) const override;
};

} // namespace BrenvikTools
