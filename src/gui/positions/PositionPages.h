#pragma once

#include "gui/wizard/PageSurroundings.h"

#include <QList>

class QWidget;
class QWizardPage;

namespace TVR::GUI {

/// The page of the wells, which belongs to `wizard`: a WellPositionAndUsageWizardPage, whose
/// signal `updateGraphics` and slot `update` belong to the map.
QList<QWizardPage*> positionPages(const PageSurroundings& surroundings, QWidget* wizard);

} // namespace TVR::GUI
