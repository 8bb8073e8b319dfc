#include "tour/DialogTour.h"

#include "boxes/MessageBoxes.h"
#include "design/ParameterId.h"
#include "gui/RecoveryDialog.h"
#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "store/Manager.h"
#include "support/ProgramLanguage.h"
#include "tour/WindowGuide.h"

#include <QTreeWidget>

namespace TVR::Test {
namespace {

const QString longFileName =
    "/projects/heating and cooling of the town hall/variants with four wells/second variant.tvr";
const QString longTitle = "Heating and cooling of the town hall: second variant with four wells";

/// From one project to another one in which everything is different.
QList<Difference> everyDifference(const QString& language) {
  Data::Manager& store = *Data::Manager::instance();
  store.reset();
  store.setValue(Parameter::GuiLanguage, language);
  const Project before = store.project();
  for (int id = 0; id < Parameter::Count; ++id)
    if (id != Parameter::GuiLanguage && store.stored(id).type() == QVariant::Double)
      store.setStored(id, store.stored(id).toDouble() + 1.0);
  store.setStored(Parameter::ProjectName, longTitle);
  const QList<Difference> differences = ProjectDifferences::between(before, store.project());
  store.reset();
  return differences;
}

QList<GUI::UnsavedProject> unsavedProjects(const QString& language) {
  const QDateTime time(QDate(2026, 11, 22), QTime(12, 34));
  GUI::UnsavedProject neverSaved;
  neverSaved.keptAt = time;
  GUI::UnsavedProject gone = neverSaved;
  gone.title = longTitle;
  gone.file = longFileName;
  GUI::UnsavedProject same = gone;
  same.savedAt = time;
  GUI::UnsavedProject changed = same;
  changed.differences = everyDifference(language);
  GUI::UnsavedProject batch = same;
  batch.isCompared = false;
  GUI::UnsavedProject damaged = same;
  damaged.isWhole = false;
  return {changed, neverSaved, gone, batch, same, damaged};
}

void visitRecovery(const QString& language, const Visit& visit) {
  GUI::RecoveryDialog dialog(unsavedProjects(language));
  auto* const list = dialog.findChild<QTreeWidget*>("projects");
  dialog.show();
  for (int row = 0; row < list->topLevelItemCount(); ++row) {
    list->setCurrentItem(list->topLevelItem(row));
    settle();
    visit(QString("recovery_%1").arg(row + 1), dialog);
  }
}

/// The boxes with the longest texts of each kind. Those with which pages ask are theirs.
void visitBoxes(WindowGuide& guide) {
  MessageBoxes boxes;
  guide.go("box_fault", [&] {
    boxes.tell(Severity::Critical, programTitle,
               PluginText::tr("Unable to open:%1").arg(longFileName), Qt::PlainText);
  });
  guide.go("box_agrees", [&] {
    boxes.agrees(programTitle, PluginText::tr("Simulation will be stopped at next step!"));
  });
  guide.go("box_saves", [&] {
    boxes.saves(programTitle,
                PluginText::tr("Should the open project saved before opening a new project?"));
  });
  guide.go("box_yes_or_no", [&] {
    boxes.saysYes(
        Severity::Warning, programTitle,
        PluginText::tr("%1 already exists.\nDo you want to replace it?").arg(longFileName));
  });
  guide.go("box_changes", [&] {
    boxes.decidesOnChanges(
        programTitle,
        QCoreApplication::translate(
            "TVR::ProjectDocument",
            "The project \"%1\" has changes that are not saved. Do you want to save them?")
            .arg(longTitle));
  });
  guide.go("box_done", [&] {
    boxes.tellDone(
        programTitle,
        PluginText::tr("<b>TVR project &laquo;%1&raquo; ready to use.</b>").arg(longTitle),
        PluginText::tr("read from file: %1").arg(longFileName), ":/TVR/images/smiley_done.png");
  });
}

} // namespace

void tourOfDialogs(const QString& language, const Visit& visit) {
  const ProgramLanguage texts(language);
  visitRecovery(language, visit);
  const QWidget nowhere;
  WindowGuide guide(nowhere, visit);
  visitBoxes(guide);
}

} // namespace TVR::Test
