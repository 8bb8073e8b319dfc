#pragma once

#include "gui/wizard/PageSurroundings.h"

#include <QList>

class QWidget;
class QWizardPage;

namespace TVR::GUI {

/// The page of the graphical mapping wizard. It belongs to `wizard`.
QList<QWizardPage*> mappingPages(const PageSurroundings& surroundings, QWidget* wizard);

} // namespace TVR::GUI
