#include "design/ParameterId.h"
#include "gui/GeneralPagesTest.h"
#include "gui/Keyboard.h"
#include "support/TestDirectory.h"
#include "tables/PropertyModel.h"

#include <QFrame>
#include <QGroupBox>
#include <QHeaderView>
#include <QImage>
#include <QTableView>
#include <QTextEdit>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class ProjectPage : public GeneralPagesTest, protected TestDirectory {
protected:
  QTableView& table() { return *in<QTableView>(page(Plan), "addressTableView"); }
  QTextEdit& description() { return *in<QTextEdit>(page(Plan), "descriptionBrowser"); }
};

TEST_F(ProjectPage, nameAddressAndDescriptionAreShown) {
  store.setValue(ProjectName, "School");
  store.setValue(ProjectLocation, "Basel");
  store.setValue(ProjectDescription, "<p>Two <b>wells</b></p>");
  enter(Plan);
  EXPECT_EQ(textIn(page(Plan), "projectName"), "School");
  EXPECT_EQ(description().toPlainText(), "Two wells");
  ASSERT_EQ(table().model()->rowCount(), 3);
  const int ids[] = {ProjectStreet, ProjectZip, ProjectLocation};
  for (int row = 0; row < 3; ++row)
    EXPECT_EQ(table().model()->index(row, PropertyModel::Name).data().toString(),
              store.label(ids[row]).toString());
  EXPECT_EQ(table().model()->index(2, PropertyModel::Value).data().toString(), "Basel");
}

TEST_F(ProjectPage, theTableHasAFrameAndAGridAndNoHeaders) {
  enter(Plan);
  EXPECT_EQ(table().frameShape(), QFrame::Box);
  EXPECT_TRUE(table().showGrid());
  EXPECT_EQ(table().gridStyle(), Qt::SolidLine);
  EXPECT_TRUE(table().horizontalHeader()->isHidden());
  EXPECT_TRUE(table().verticalHeader()->isHidden());
  EXPECT_TRUE(table().isColumnHidden(PropertyModel::Unit));
  EXPECT_EQ(table().horizontalHeader()->sectionResizeMode(PropertyModel::Value),
            QHeaderView::Stretch);
}

TEST_F(ProjectPage, itsGroupsAreFlat) {
  QStringList titles;
  for (const QGroupBox* box : page(Plan).findChildren<QGroupBox*>()) {
    titles << box->title();
    EXPECT_TRUE(box->isFlat());
  }
  EXPECT_EQ(titles, (QStringList{"Name", "Location", "Description"}));
}

TEST_F(ProjectPage, leavingWritesNameAndDescriptionAndThatThePagesAreDone) {
  enter(Plan);
  type(page(Plan), "projectName", "School");
  QTest::keyClicks(&description(), "Two wells");
  EXPECT_EQ(written(page(Plan)),
            (QVector<int>{ProjectName, ProjectDescription, GeneralWizardDone}));
  EXPECT_EQ(store.text(ProjectName), "School");
  EXPECT_EQ(store.text(ProjectDescription), description().toHtml());
  EXPECT_TRUE(store.text(ProjectDescription).contains("Two wells"));
  EXPECT_EQ(store.stored(GeneralWizardDone), QVariant(true));
}

TEST_F(ProjectPage, leavingItAsItIsTurnsTheDescriptionIntoAWholeTextOnce) {
  store.setValue(ProjectName, "School");
  store.setValue(ProjectDescription, "Two wells");
  const Project before = store.project();
  enter(Plan);
  EXPECT_TRUE(page(Plan).validatePage());
  EXPECT_EQ(changedSince(before), (QVector<int>{GeneralWizardDone, ProjectDescription}));
  const Project after = store.project();
  enter(Plan);
  EXPECT_TRUE(page(Plan).validatePage());
  EXPECT_EQ(store.project(), after);
}

TEST_F(ProjectPage, aDescriptionOpensNoFile) {
  QImage image(90, 90, QImage::Format_RGB32);
  image.fill(Qt::red);
  ASSERT_TRUE(image.save(path("picture.png")));
  store.setValue(ProjectDescription, QString("<img src='%1'>").arg(path("picture.png")));
  enter(Plan);
  const QVariant picture =
      description().document()->resource(QTextDocument::ImageResource, QUrl(path("picture.png")));
  EXPECT_EQ(picture.value<QImage>().size(), QSize(1, 1));
  EXPECT_TRUE(page(Plan).validatePage());
  EXPECT_TRUE(store.text(ProjectDescription).contains("picture.png"));
}

TEST_F(ProjectPage, aResetPutsEverythingBackOnYes) {
  const int ids[] = {ProjectName, ProjectStreet, ProjectZip, ProjectLocation, ProjectDescription};
  for (const int id : ids)
    store.setValue(id, "one");
  const Project before = store.project();
  enter(Plan);
  for (const int id : ids)
    store.setValue(id, "other");

  answers.yes = false;
  const Project changed = store.project();
  page(Plan).cleanupPage();
  EXPECT_EQ(store.project(), changed);

  answers.yes = true;
  page(Plan).cleanupPage();
  EXPECT_EQ(answers.shown.last(), "Reset all changes on the project information?");
  EXPECT_EQ(answers.titles.last(), "Tevrane");
  EXPECT_EQ(changedSince(before), QVector<int>());
}

TEST_F(ProjectPage, anotherLanguageKeepsWhatWasTyped) {
  enter(Plan);
  type(page(Plan), "projectName", "School");
  QTest::keyClicks(&description(), "Two wells");
  tellOfLanguage(page(Plan));
  EXPECT_EQ(textIn(page(Plan), "projectName"), "School");
  EXPECT_EQ(description().toPlainText(), "Two wells");
}

class GeneralWizard : public GeneralPagesTest {
protected:
  void open() {
    wizard.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wizard));
  }

  /// Types a line into a table and goes on to the next one.
  static void typeLine(const QString& text) {
    hit(Qt::Key_F2);
    keys(text);
    hit(Qt::Key_Return);
    QApplication::processEvents();
    hit(Qt::Key_Down);
  }
};

TEST_F(GeneralWizard, isFilledInByKeyboardAlone) {
  open();
  ASSERT_TRUE(tabTo("userTableView"));
  for (const char* line : {"Ada Brunner", "Rheinweg 1", "4051", "Basel"})
    typeLine(line);
  ASSERT_TRUE(tabTo("toolButtonLogoFileSelection"));
  ASSERT_TRUE(tabTo("userTableView"));
  hit(Qt::Key_Return);
  ASSERT_EQ(wizard.currentPage(), &page(Plan));
  ASSERT_TRUE(tabTo("projectName"));
  keys("School");
  ASSERT_TRUE(tabTo("addressTableView"));
  for (const char* line : {"Schulweg 2", "4058", "Riehen"})
    typeLine(line);
  ASSERT_TRUE(tabTo("descriptionBrowser"));
  keys("Two wells");
  ASSERT_TRUE(tabTo("projectName"));
  hit(Qt::Key_Return);
  EXPECT_EQ(wizard.result(), QDialog::Accepted);
  EXPECT_EQ(store.text(UserAddress), "Ada Brunner<br>Rheinweg 1<br>4051 Basel");
  EXPECT_EQ(store.text(ProjectAddress), "School<br>Schulweg 2<br>4058 Riehen");
  EXPECT_TRUE(store.text(ProjectDescription).contains("Two wells"));
  EXPECT_TRUE(store.flag(GeneralWizardDone));
}

TEST_F(GeneralWizard, cancelledOnTheSecondPageKeepsWhatTheTableOfTheFirstTook) {
  open();
  ASSERT_TRUE(tabTo("userTableView"));
  typeLine("Ada Brunner");
  hit(Qt::Key_Return);
  ASSERT_EQ(wizard.currentPage(), &page(Plan));
  ASSERT_TRUE(tabTo("projectName"));
  keys("School");
  hit(Qt::Key_Escape);
  EXPECT_FALSE(wizard.isVisible());
  EXPECT_EQ(answers.shown, QStringList());
  EXPECT_EQ(store.text(UserName), "Ada Brunner");
  EXPECT_EQ(store.text(ProjectName), "");
  EXPECT_FALSE(store.flag(GeneralWizardDone));
}

TEST_F(GeneralWizard, itsPagesStandInTheOrderOfAdding) {
  ASSERT_EQ(wizard.pageIds().size(), 2);
  EXPECT_EQ(page(User).metaObject()->className(), QString("TVR::GUI::UserWizardPage"));
  EXPECT_EQ(page(Plan).metaObject()->className(), QString("TVR::GUI::ProjectWizardPage"));
}

} // namespace
} // namespace TVR::GUI
