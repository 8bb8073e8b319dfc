// The lint itself: a form without faults, and one for each fault that it has to find.

#include "accessibility/AccessibilityLint.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTableWidget>
#include <QTextEdit>
#include <QWizard>

#include <gtest/gtest.h>

using namespace TVR::Test;

namespace {

/// A form of a few fields in which nothing is wrong.
struct Form : QWidget {
  Form() {
    setObjectName("form");
    rows.addRow("&Porosity", &porosity);
    rows.addRow("&Model", &model);
    rows.addRow("&Years", &years);
    rows.addRow(&buttons);
    porosity.setObjectName("porosity");
    model.addItems({"confined", "unconfined"});
    model.setObjectName("model");
    years.setObjectName("years");
    buttons.addButton("&Apply", QDialogButtonBox::ApplyRole);
  }

  void showOnce() {
    show();
    ensurePolished();
    layout()->activate();
  }

  QLineEdit porosity;
  QComboBox model;
  QSpinBox years;
  QDialogButtonBox buttons;
  // After its widgets: it goes first and leaves them alone.
  QFormLayout rows{this};
};

/// The one fault of a check, or all lines if there is not exactly one.
std::string faultOf(const QStringList& faults) {
  return faults.join("; ").toStdString();
}

} // namespace

TEST(AccessibilityLint, aFormInOrderHasNoFaults) {
  Form form;
  form.showOnce();
  EXPECT_EQ(faultOf(accessibilityFaults(form)), "");
}

TEST(AccessibilityLint, anInputWithoutALabelOrANameIsFound) {
  Form form;
  qobject_cast<QLabel*>(form.rows.labelForField(&form.porosity))->setBuddy(nullptr);
  form.showOnce();
  EXPECT_EQ(faultOf(unnamedInputs(form)), "porosity has no name");
  form.porosity.setAccessibleName("Porosity");
  EXPECT_EQ(faultOf(unnamedInputs(form)), "");
}

TEST(AccessibilityLint, aListNeedsANameBesideItsLabel) {
  Form form;
  QTableWidget table(2, 2);
  table.setObjectName("table");
  form.rows.addRow("&Wells", &table);
  form.showOnce();
  EXPECT_EQ(faultOf(unnamedInputs(form)), "table has no name");
  table.setAccessibleName("Wells");
  EXPECT_EQ(faultOf(unnamedInputs(form)), "");
}

TEST(AccessibilityLint, aButtonWithAPictureOnlyNeedsAName) {
  Form form;
  QPushButton stop;
  stop.setObjectName("stop");
  form.rows.addRow(&stop);
  form.showOnce();
  EXPECT_EQ(faultOf(unnamedInputs(form)), "stop has no name");
}

TEST(AccessibilityLint, aTabOrderAgainstTheEyeIsFound) {
  Form form;
  QWidget::setTabOrder(&form.years, &form.porosity);
  QWidget::setTabOrder(&form.porosity, &form.model);
  form.showOnce();
  EXPECT_EQ(faultOf(tabOrderFaults(form)),
            "after the beginning Tab goes to years, and the eye to porosity");
}

TEST(AccessibilityLint, aGroupIsReadBeforeWhatIsBesideIt) {
  QWidget window;
  QHBoxLayout columns(&window);
  Form left;
  Form right;
  columns.addWidget(&left);
  columns.addWidget(&right);
  window.show();
  columns.activate();
  EXPECT_EQ(faultOf(tabOrderFaults(window)), "");
  left.setParent(nullptr);
  right.setParent(nullptr);
}

TEST(AccessibilityLint, aMnemonicThatStandsForTwoThingsIsFound) {
  Form form;
  QPushButton print("&Print");
  form.rows.addRow(&print);
  form.showOnce();
  EXPECT_EQ(faultOf(mnemonicFaults(form)), "Alt+P in form stands for \"&Porosity\", \"&Print\"");
}

TEST(AccessibilityLint, aMnemonicThatAPageAndAButtonOfItsWizardClaimIsFound) {
  QWizard wizard;
  wizard.setObjectName("wizard");
  wizard.setButtonText(QWizard::NextButton, "&Next");
  QWizardPage page;
  QVBoxLayout column(&page);
  QCheckBox night("&Night storage");
  column.addWidget(&night);
  wizard.addPage(&page);
  wizard.addPage(new QWizardPage);
  wizard.show();
  EXPECT_EQ(faultOf(mnemonicFaults(wizard)),
            "Alt+N in wizard stands for \"&Next\", \"&Night storage\"");
  night.setText("Night &storage");
  EXPECT_EQ(faultOf(mnemonicFaults(wizard)), "");
}

TEST(AccessibilityLint, aMnemonicThatStandsForTwoEntriesOfAMenuIsFound) {
  QWidget window;
  QMenuBar bar(&window);
  QMenu* const file = bar.addMenu("&File");
  file->addAction("&Save");
  file->addAction("&Shapefile");
  bar.addMenu("&Settings")->addAction("&Save as");
  EXPECT_EQ(faultOf(mnemonicFaults(window)),
            "Alt+S in the menu \"&File\" stands for \"&Save\", \"&Shapefile\"");
}

TEST(AccessibilityLint, textsThatDoNotFitAreFound) {
  Form form;
  form.rows.labelForField(&form.porosity)->setObjectName("label");
  form.rows.labelForField(&form.porosity)->setFixedWidth(12);
  form.model.setFixedWidth(40);
  form.years.setFixedHeight(6);
  form.buttons.buttons().first()->setFixedWidth(10);
  form.showOnce();
  EXPECT_EQ(faultOf(clippedTexts(form)),
            "label is too small for its text; model is too small for its text; "
            "years is too small for its text; QPushButton \"&Apply\" is too small for its text");
}

TEST(AccessibilityLint, aTextThatAToolTipRepeatsMayBeCut) {
  Form form;
  QWidget* const label = form.rows.labelForField(&form.porosity);
  label->setFixedWidth(12);
  label->setToolTip("Porosity");
  form.showOnce();
  EXPECT_EQ(faultOf(clippedTexts(form)), "");
}

TEST(AccessibilityLint, aColumnTooNarrowForItsHeadIsFound) {
  Form form;
  QTableWidget table(2, 2);
  table.setObjectName("table");
  table.setHorizontalHeaderLabels({"Well", "Temperature of the water"});
  table.horizontalHeader()->setMinimumSectionSize(30);
  table.setColumnWidth(1, 30);
  form.rows.addRow(&table);
  form.showOnce();
  ASSERT_EQ(table.horizontalHeader()->sectionSize(1), 30);
  EXPECT_EQ(faultOf(clippedTexts(form)), "table is too small for its text");
  table.resizeColumnsToContents();
  EXPECT_EQ(faultOf(clippedTexts(form)), "");
}

TEST(AccessibilityLint, aColumnTooNarrowForAWordOfItsHeadInLinesIsFound) {
  Form form;
  QTableWidget table(1, 2);
  table.setObjectName("table");
  table.setHorizontalHeaderLabels({"Well", "Temperature of the water"});
  QHeaderView& header = *table.horizontalHeader();
  header.setDefaultAlignment(Qt::AlignCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
  header.setFixedHeight(5 * header.fontMetrics().lineSpacing());
  const int longestWord = header.fontMetrics().horizontalAdvance("Temperature");
  form.rows.addRow(&table);
  form.showOnce();
  table.setColumnWidth(1, 2 * longestWord);
  EXPECT_EQ(faultOf(clippedTexts(form)), "");
  table.setColumnWidth(1, longestWord / 2);
  ASSERT_EQ(header.sectionSize(1), longestWord / 2);
  EXPECT_EQ(faultOf(clippedTexts(form)), "table is too small for its text");
}

TEST(AccessibilityLint, aCellTooNarrowForItsTextIsFoundUnlessAToolTipRepeatsIt) {
  Form form;
  QTableWidget table(1, 2);
  table.setObjectName("table");
  table.setItem(0, 1, new QTableWidgetItem("the water that is given back"));
  form.rows.addRow(&table);
  form.showOnce();
  EXPECT_EQ(faultOf(clippedTexts(form)), "table is too small for its text");
  table.item(0, 1)->setToolTip(table.item(0, 1)->text());
  EXPECT_EQ(faultOf(clippedTexts(form)), "");
  table.item(0, 1)->setToolTip({});
  table.hideColumn(1);
  EXPECT_EQ(faultOf(clippedTexts(form)), "");
}

TEST(AccessibilityLint, aNumberTooLongForItsEditIsFoundAndAnotherTextScrolls) {
  Form form;
  form.porosity.setText("0.123456789");
  form.porosity.setFixedWidth(40);
  form.showOnce();
  EXPECT_EQ(faultOf(clippedTexts(form)), "");
  form.porosity.setValidator(new QDoubleValidator(&form.porosity));
  EXPECT_EQ(faultOf(clippedTexts(form)), "porosity is too small for its text");
}

TEST(AccessibilityLint, aTextThatScrollsSidewaysIsFound) {
  Form form;
  QTextEdit notes("one_word_that_is_longer_than_there_is_room_for");
  notes.setObjectName("notes");
  notes.setFixedWidth(60);
  form.rows.addRow(&notes);
  form.showOnce();
  EXPECT_EQ(faultOf(clippedTexts(form)), "");
  notes.setWordWrapMode(QTextOption::WordWrap);
  EXPECT_EQ(faultOf(clippedTexts(form)), "notes is too small for its text");
}

TEST(AccessibilityLint, whatReachesOutOfItsParentIsFoundUnlessThatScrolls) {
  QWidget window;
  window.resize(200, 100);
  QWidget part(&window);
  part.setObjectName("part");
  part.setGeometry(150, 0, 60, 20);
  window.show();
  EXPECT_EQ(faultOf(clippedTexts(window)), "part reaches out of QWidget");
  QScrollArea area(&window);
  area.resize(200, 100);
  part.setFixedSize(300, 200);
  area.setWidget(&part);
  area.show();
  EXPECT_EQ(faultOf(clippedTexts(window)), "");
  area.takeWidget();
}
