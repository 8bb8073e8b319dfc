#include "results/ExportOptionsDialog.h"

#include "design/ParameterId.h"
#include "host/ApplicationInterface.h"
#include "project/ProjectTarget.h"
#include "results/IsolineWalk.h"
#include "results/WorkingDirectory.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QVBoxLayout>

namespace TVR {

namespace {

constexpr int optionsRow = 2;
constexpr int labelTopMargin = 9;

/// Makes room for a row of the layout. What spans rows of the last column comes back with two of
/// them.
void freeRow(QGridLayout& layout, int freedRow) {
  struct Moved {
    QLayoutItem* item;
    int row, column, rowSpan, columnSpan;
  };
  std::vector<Moved> below;
  for (int i = layout.count() - 1; i >= 0; --i) {
    Moved moved{};
    layout.getItemPosition(i, &moved.row, &moved.column, &moved.rowSpan, &moved.columnSpan);
    if (moved.row < freedRow)
      continue;
    moved.item = layout.takeAt(i);
    below.push_back(moved);
  }
  const int lastColumn = layout.columnCount() - 1;
  for (const Moved& moved : below) {
    const bool spans = moved.column == lastColumn && moved.rowSpan > 1;
    layout.addItem(moved.item, moved.row + 1, moved.column, spans ? 2 : moved.rowSpan,
                   moved.columnSpan);
  }
}

} // namespace

ExportOptionsDialog::ExportOptionsDialog(const QString& title, const QString& filter,
                                         const QString& directory, bool isohypses, bool isotherms,
                                         QWidget* parent)
    : QFileDialog(parent, title, directory, filter),
      isohypses_(new QCheckBox(tr("Save isohypses"))),
      isotherms_(new QCheckBox(tr("Save isothermes"))) {
  setOption(QFileDialog::DontUseNativeDialog); // the platform's own dialog has no layout to extend
  setAcceptMode(QFileDialog::AcceptSave);

  isohypses_->setChecked(isohypses);
  isotherms_->setChecked(isotherms);
  auto* const frame = new QFrame;
  frame->setFrameShape(QFrame::NoFrame);
  auto* const boxes = new QVBoxLayout(frame);
  boxes->addWidget(isohypses_);
  boxes->addWidget(isotherms_);
  auto* const label = new QLabel(tr("Options:"));
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  label->setContentsMargins(0, labelTopMargin, 0, 0);

  if (auto* const grid = qobject_cast<QGridLayout*>(layout())) {
    freeRow(*grid, optionsRow);
    grid->addWidget(label, optionsRow, 0);
    grid->addWidget(frame, optionsRow, 1);
  }
}

bool ExportOptionsDialog::savesIsohypses() const {
  return isohypses_->isChecked();
}

bool ExportOptionsDialog::savesIsotherms() const {
  return isotherms_->isChecked();
}

std::optional<ExportChoice> askForExport(const PageAccess& page,
                                         BrenvikApp::ApplicationInterface* host,
                                         const QString& title, const QString& filter) {
  if (!showsResults(page))
    return {};
  ProjectTarget& project = page.project;
  ExportOptionsDialog dialog(
      title, filter, startDirectory(host), project.flag(Parameter::ExportIsohypsesAsShape),
      project.flag(Parameter::ExportIsothermsAsShape), host ? host->mainWindow() : nullptr);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
    return {};
  const ExportChoice choice{dialog.selectedFiles().first(), dialog.savesIsohypses(),
                            dialog.savesIsotherms()};
  rememberDirectoryOf(choice.fileName, host);
  project.setValue(Parameter::ExportIsohypsesAsShape, choice.isohypses);
  project.setValue(Parameter::ExportIsothermsAsShape, choice.isotherms);
  return choice;
}

} // namespace TVR
