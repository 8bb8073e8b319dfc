#pragma once

#include "gui/wizard/PageSurroundings.h"

#include <QList>

class QWidget;
class QWizardPage;

namespace TVR::GUI {

/// The page of the aquifer. It belongs to `wizard`.
QList<QWizardPage*> aquiferPages(const PageSurroundings& surroundings, QWidget* wizard);
/// The pages of the wells' design, which follow it, in their order. They belong to `wizard`.
QList<QWizardPage*> wellDesignPages(const PageSurroundings& surroundings, QWidget* wizard);

} // namespace TVR::GUI
