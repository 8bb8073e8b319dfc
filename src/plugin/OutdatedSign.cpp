#include "plugin/OutdatedSign.h"

#include "host/PreviewInterface.h"
#include "plugin/MainWindowParts.h"
#include "plugin/OutdatedResults.h"
#include "plugin/ResultGraphic.h"

namespace TVR {

namespace {

constexpr int mostChanges = 10; // that a tool tip names

} // namespace

OutdatedSign::OutdatedSign(const OutdatedResults& results, MainWindowParts& parts,
                           ResultGraphic& graphic)
    : results_(results), parts_(parts), graphic_(graphic) {
  connect(&results, &OutdatedResults::changed, this, &OutdatedSign::update);
}

void OutdatedSign::update() {
  QString sign;
  QStringList reasons;
  const bool isOutdated = results_.areThere();
  if (isOutdated) {
    sign = tr("Results out of date");
    reasons = results_.changes();
    const int more = reasons.size() - mostChanges;
    if (more > 0)
      reasons = reasons.mid(0, mostChanges) << tr("and others: %1").arg(QString::number(more));
    reasons.prepend(reasons.isEmpty() ? tr("The project was changed after the simulation.")
                                      : tr("Changed after the simulation:"));
  }
  parts_.showResultState(sign, reasons);
  Sketra_lib::GraphicsWorkspaceWindow* const page = graphic_.windowToSave();
  QWidget* const widget = page ? page->widget() : nullptr;
  if (auto* const window = qobject_cast<Sketra_lib::PreviewInterface*>(widget))
    window->showNotice(graphic_.items().mapView, sign,
                       isOutdated ? tr("%1. %2").arg(sign, reasons.join(' ')) : sign);
}

} // namespace TVR
