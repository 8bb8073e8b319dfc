#pragma once

#include "gui/wizard/PageSurroundings.h"

#include <QList>

class QWidget;
class QWizardPage;

namespace TVR::GUI {

/// The pages of the energy wizard, in the order in which they are to be added to it. Each knows
/// which one follows. They belong to `wizard`.
QList<QWizardPage*> energyPages(const PageSurroundings& surroundings, QWidget* wizard);

} // namespace TVR::GUI
