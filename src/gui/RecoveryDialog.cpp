#include "gui/RecoveryDialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace TVR::GUI {

namespace {

constexpr QSize usualSize(760, 520);
constexpr int fewestLines = 24; // that there has to be room for, however large the letters are

QTreeWidget* makeList(const QString& objectName, const QStringList& headers) {
  auto* const list = new QTreeWidget;
  list->setObjectName(objectName);
  list->setHeaderLabels(headers);
  list->setRootIsDecorated(false);
  list->setAllColumnsShowFocus(true);
  list->setAlternatingRowColors(true);
  list->setTabKeyNavigation(false);
  return list;
}

void fitColumns(QTreeWidget& list) {
  for (int column = 0; column < list.columnCount(); ++column)
    list.resizeColumnToContents(column);
}

QString timeText(const QDateTime& time) {
  return QLocale().toString(time, QLocale::ShortFormat);
}

} // namespace

RecoveryDialog::RecoveryDialog(QList<UnsavedProject> projects, QWidget* parent)
    : QDialog(parent), projects_(std::move(projects)),
      list_(makeList("projects",
                     {tr("Project"), tr("Automatically saved"), tr("File"), tr("File saved")})),
      remark_(new QLabel),
      differences_(
          makeList("differences", {tr("Value"), tr("In the file"), tr("Automatically saved")})),
      others_(new QLabel(
          tr("After one is recovered, the others are offered again at the next start."))) {
  setWindowTitle(tr("Recover unsaved projects"));
  resize(usualSize.expandedTo({0, fewestLines * fontMetrics().lineSpacing()}));
  remark_->setObjectName("remark");
  remark_->setWordWrap(true);
  others_->setObjectName("others");
  others_->setWordWrap(true);

  auto* const introduction = new QLabel(
      tr("The program ended before these projects were saved. What was saved "
         "automatically can be recovered; their files stay as they are until you save."));
  introduction->setWordWrap(true);
  auto* const projectsLabel = new QLabel(tr("&Projects:"));
  projectsLabel->setBuddy(list_);
  auto* const differencesLabel = new QLabel(tr("D&ifferences:"));
  differencesLabel->setBuddy(differences_);
  list_->setAccessibleName(tr("Projects"));
  differences_->setAccessibleName(tr("Differences"));

  auto* const buttons = new QDialogButtonBox;
  recover_ = buttons->addButton(tr("&Recover"), QDialogButtonBox::AcceptRole);
  auto* const discard = buttons->addButton(tr("&Discard..."), QDialogButtonBox::DestructiveRole);
  auto* const later = buttons->addButton(tr("Decide &later"), QDialogButtonBox::RejectRole);
  recover_->setObjectName("recover");
  discard->setObjectName("discard");
  later->setObjectName("later");
  recover_->setDefault(true);

  auto* const layout = new QVBoxLayout(this);
  for (QWidget* widget :
       std::initializer_list<QWidget*>{introduction, projectsLabel, list_, others_, remark_,
                                       differencesLabel, differences_, buttons})
    layout->addWidget(widget);
  layout->setStretchFactor(list_, 1);
  layout->setStretchFactor(differences_, 2);

  connect(list_, &QTreeWidget::currentItemChanged, this, &RecoveryDialog::showChosen);
  connect(recover_, &QPushButton::clicked, this, [this] { emit recoveryWanted(chosenRow()); });
  connect(discard, &QPushButton::clicked, this, [this] { emit discardWanted(chosenRow()); });
  connect(later, &QPushButton::clicked, this, &QDialog::reject);
  fillProjects();
}

int RecoveryDialog::chosenRow() const {
  return list_->indexOfTopLevelItem(list_->currentItem());
}

void RecoveryDialog::fillProjects() {
  for (const UnsavedProject& project : projects_) {
    const QString title = project.title.isEmpty() ? tr("Without a name") : project.title;
    const QString file =
        project.file.isEmpty() ? tr("Never saved") : QDir::toNativeSeparators(project.file);
    list_->addTopLevelItem(
        new QTreeWidgetItem({title, timeText(project.keptAt), file, timeText(project.savedAt)}));
  }
  fitColumns(*list_);
  list_->setCurrentItem(list_->topLevelItem(0));
}

void RecoveryDialog::showChosen() {
  const int row = chosenRow();
  others_->setVisible(projects_.size() > 1);
  differences_->clear();
  if (row < 0)
    return;
  const UnsavedProject& project = projects_[row];
  recover_->setEnabled(project.isWhole);
  if (!project.isWhole)
    remark_->setText(tr("What was saved automatically is damaged. It can only be discarded."));
  else if (project.file.isEmpty())
    remark_->setText(tr("This project was never saved. It is shown beside an empty project."));
  else if (!project.savedAt.isValid())
    remark_->setText(tr("The file of this project is not there any more, or cannot be read."));
  else if (!project.isCompared)
    remark_->setText(tr("The file of this project is a batch file. It holds less than a project, "
                        "so that the two are not compared."));
  else if (project.differences.isEmpty())
    remark_->setText(tr("All values are as in the file; the page may be another one."));
  else
    remark_->setText(tr("The page may differ as well."));
  for (const Difference& difference : project.differences)
    differences_->addTopLevelItem(
        new QTreeWidgetItem({difference.what, difference.before, difference.after}));
  fitColumns(*differences_);
}

void RecoveryDialog::removeProject(int row) {
  delete list_->takeTopLevelItem(row); // the list chooses another one before this one is gone
  projects_.removeAt(row);
  if (projects_.isEmpty())
    accept();
  else
    showChosen();
}

} // namespace TVR::GUI
