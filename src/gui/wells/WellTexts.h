#pragma once

#include <QCoreApplication>

namespace TVR::GUI {

/// Texts in the context that the translations have for aquifer and wells, as they spell it.
class WellTexts {
  Q_DECLARE_TR_FUNCTIONS(BrunnenWizard)

public:
  static constexpr char context[] = "BrunnenWizard";
};

} // namespace TVR::GUI
