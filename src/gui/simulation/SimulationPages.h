#pragma once

#include "gui/wizard/PageSurroundings.h"

#include <QList>

class QWidget;
class QWizardPage;

namespace TVR::GUI {

/// The page of the simulation parameters. It belongs to `wizard`.
QList<QWizardPage*> simulationPages(const PageSurroundings& surroundings, QWidget* wizard);
/// The page of the extended simulation parameters, the last one. It belongs to `wizard`.
QList<QWizardPage*> extendedSimulationPages(const PageSurroundings& surroundings, QWidget* wizard);

} // namespace TVR::GUI
