#pragma once

#include "gui/wizard/PageSurroundings.h"

#include <QList>

class QWidget;
class QWizardPage;

namespace TVR::GUI {

/// The pages of the general wizard, in the order in which they are to be added to it. They belong
/// to `wizard`.
QList<QWizardPage*> generalPages(const PageSurroundings& surroundings, QWidget* wizard);

} // namespace TVR::GUI
