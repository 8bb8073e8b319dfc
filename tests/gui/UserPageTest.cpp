#include "design/ParameterId.h"
#include "gui/GeneralPagesTest.h"
#include "results/DialogUser.h"
#include "support/BareHost.h"
#include "support/ContextTranslator.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestDirectory.h"
#include "tables/PropertyModel.h"

#include <QDir>
#include <QHeaderView>
#include <QImage>
#include <QImageReader>
#include <QTableView>
#include <QToolButton>

#include <sys/stat.h>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class UserPage : public GeneralPagesTest, protected TestDirectory {
protected:
  using GeneralPagesTest::GeneralPagesTest;

  QTableView& table() { return *in<QTableView>(page(User), "userTableView"); }
  QString cell(int row, int column) {
    return table().model()->index(row, column).data().toString();
  }
  QString fileName() { return in<QLabel>(page(User), "LogoFileName")->text(); }
  QToolButton& remove() { return *in<QToolButton>(page(User), "toolButtonDeleteLogo"); }
  QLabel& view() { return *in<QLabel>(page(User), "LogoView"); }
  QSize pictureSize() { return view().pixmap(Qt::ReturnByValue).size(); }
  bool showsView() { return view().isVisibleTo(&page(User)); }

  QString picture(int width, int height) const {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_TRUE(image.save(path("logo.png")));
    return path("logo.png");
  }

  /// Presses the button and answers the dialog that comes.
  void browse(const DialogUser::Answer& answer) {
    const DialogUser user(answer);
    press(page(User), "toolButtonLogoFileSelection");
    EXPECT_TRUE(user.sawDialog());
  }
  QString directoryOfDialog() {
    QString seen;
    browse([&seen](QFileDialog& dialog) {
      seen = dialog.directory().absolutePath();
      giveUp(dialog);
    });
    return seen;
  }

  const SettingsOfTheTest settings_;
};

TEST_F(UserPage, theTableShowsNamesAndValues) {
  store.setValue(UserName, "Ada Brunner");
  store.setValue(UserLocation, "Basel");
  enter(User);
  ASSERT_EQ(table().model()->rowCount(), 4);
  const int ids[] = {UserName, UserStreet, UserZip, UserLocation};
  for (int row = 0; row < 4; ++row)
    EXPECT_EQ(cell(row, PropertyModel::Name), store.label(ids[row]).toString());
  EXPECT_EQ(cell(0, PropertyModel::Value), "Ada Brunner");
  EXPECT_EQ(cell(3, PropertyModel::Value), "Basel");
  EXPECT_TRUE(table().isColumnHidden(PropertyModel::Unit));
  EXPECT_EQ(table().horizontalHeader()->sectionResizeMode(PropertyModel::Value),
            QHeaderView::Stretch);
}

TEST_F(UserPage, theNamesInTheTableAreShownInFull) {
  const ContextTranslator translator; // makes them long
  enter(User);
  for (int row = 0; row < 4; ++row)
    EXPECT_GE(table().columnWidth(PropertyModel::Name),
              table().fontMetrics().horizontalAdvance(cell(row, PropertyModel::Name)));
}

TEST_F(UserPage, whatIsTypedIntoTheTableIsKeptAtOnce) {
  enter(User);
  QTest::keyClick(&table(), Qt::Key_Down);
  QTest::keyClick(&table(), Qt::Key_F2);
  auto* const editor = table().viewport()->findChild<QLineEdit*>();
  ASSERT_TRUE(editor);
  QTest::keyClicks(editor, "Rheinweg 1");
  QTest::keyClick(editor, Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(store.text(UserStreet), "Rheinweg 1");
}

TEST_F(UserPage, aTableIsNotKeptLongerThanItsPage) {
  const int before = store.findChildren<PropertyModel*>().size();
  enter(User);
  enter(User);
  EXPECT_EQ(store.findChildren<PropertyModel*>().size(), before);
}

TEST_F(UserPage, withoutALogoThereIsNothingToDelete) {
  enter(User);
  EXPECT_EQ(fileName(), "no file");
  EXPECT_FALSE(remove().isEnabled());
  EXPECT_FALSE(showsView());
  EXPECT_TRUE(page(User).validatePage());
  EXPECT_EQ(store.stored(UserLogo).toString(), "");
}

TEST_F(UserPage, aLogoIsShownWithItsPath) {
  store.setValue(UserLogo, picture(80, 40));
  enter(User);
  EXPECT_EQ(fileName(), path("logo.png"));
  EXPECT_TRUE(remove().isEnabled());
  EXPECT_TRUE(showsView());
  EXPECT_EQ(pictureSize(), QSize(80, 40));
}

TEST_F(UserPage, aLongPathAsksForNoMoreRoom) {
  const QString file = path(QString(200, 'x') + ".png");
  store.setValue(UserLogo, file);
  wizard.show();
  wizard.resize(400, 620);
  QApplication::processEvents();
  EXPECT_EQ(fileName(), file);
  EXPECT_EQ(in<QLabel>(page(User), "LogoFileName")->toolTip(), file);
  EXPECT_EQ(wizard.width(), 400);
}

TEST_F(UserPage, aLargeLogoIsMadeToFit) {
  store.setValue(UserLogo, picture(1200, 300));
  enter(User);
  EXPECT_EQ(pictureSize(), QSize(300, 75));
}

TEST_F(UserPage, aLogoThatHasVanishedShowsItsPathAndNoPicture) {
  store.setValue(UserLogo, path("gone.png"));
  enter(User);
  EXPECT_EQ(fileName(), path("gone.png"));
  EXPECT_TRUE(remove().isEnabled());
  EXPECT_TRUE(view().pixmap(Qt::ReturnByValue).isNull());
  EXPECT_TRUE(page(User).validatePage());
  EXPECT_EQ(store.text(UserLogo), path("gone.png"));
}

TEST_F(UserPage, aPipeOrADrawingIsNoLogo) {
  ASSERT_EQ(mkfifo(qPrintable(path("pipe.png")), 0600), 0);
  QFile drawing(path("drawing.svg"));
  ASSERT_TRUE(drawing.open(QIODevice::WriteOnly));
  drawing.write("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
  drawing.close();
  for (const char* file : {"pipe.png", "drawing.svg"}) {
    store.setValue(UserLogo, path(file));
    enter(User);
    EXPECT_EQ(fileName(), path(file));
    EXPECT_TRUE(view().pixmap(Qt::ReturnByValue).isNull());
  }
}

TEST_F(UserPage, aChosenLogoIsShownAndKeptWhenThePageIsLeft) {
  const QString file = picture(80, 40);
  enter(User);
  browse([&file](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Open logo image file");
    QString formats;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
      formats += "*." + format + ' ';
    EXPECT_EQ(dialog.nameFilters(), QStringList{"Image files (" + formats + ')'});
    choose(dialog, file);
  });
  EXPECT_EQ(fileName(), file);
  EXPECT_TRUE(remove().isEnabled());
  EXPECT_TRUE(showsView());
  EXPECT_EQ(pictureSize(), QSize(80, 40));
  EXPECT_EQ(store.text(UserLogo), "");
  EXPECT_TRUE(page(User).validatePage());
  EXPECT_EQ(store.text(UserLogo), file);
}

TEST_F(UserPage, aDialogThatIsGivenUpChangesNothing) {
  store.setValue(UserLogo, picture(80, 40));
  enter(User);
  browse(giveUp);
  EXPECT_EQ(fileName(), path("logo.png"));
}

TEST_F(UserPage, aDeletedLogoIsForgottenAndItsFileStays) {
  store.setValue(UserLogo, picture(80, 40));
  enter(User);
  press(page(User), "toolButtonDeleteLogo");
  EXPECT_EQ(fileName(), "no file");
  EXPECT_FALSE(remove().isEnabled());
  EXPECT_FALSE(showsView());
  EXPECT_EQ(store.text(UserLogo), path("logo.png"));
  EXPECT_TRUE(page(User).validatePage());
  EXPECT_EQ(store.stored(UserLogo).toString(), "");
  EXPECT_TRUE(QFile::exists(path("logo.png")));
}

TEST_F(UserPage, withoutAHostTheDialogBeginsWhereTheSettingsSay) {
  enter(User);
  QDir(directory.path()).mkpath("one");
  QDir(directory.path()).mkpath("two");
  SettingsOfTheTest::current().setValue("WorkingPath", path("two"));
  EXPECT_EQ(directoryOfDialog(), path("two"));
  SettingsOfTheTest::current().setValue("working_path", path("one"));
  EXPECT_EQ(directoryOfDialog(), path("one"));
  SettingsOfTheTest::current().setValue("working_path", "");
  EXPECT_EQ(directoryOfDialog(), path("two"));
}

TEST_F(UserPage, withoutSettingsTheDialogBeginsInTheFolderOfData) {
  enter(User);
  EXPECT_EQ(directoryOfDialog(),
            QDir(QApplication::applicationDirPath() + "/../data").canonicalPath());
}

class WorkingHost : public BareHost {
public:
  QString workingPath() const override { return path; }

  QString path;
};

class UserPageOfAHost : public UserPage {
protected:
  UserPageOfAHost() : UserPage(&host) {}

  static WorkingHost host;
};
WorkingHost UserPageOfAHost::host;

TEST_F(UserPageOfAHost, theDialogBeginsInItsWorkingPath) {
  host.path = directory.path();
  SettingsOfTheTest::current().setValue("working_path", QDir::tempPath());
  enter(User);
  EXPECT_EQ(directoryOfDialog(), QDir(directory.path()).canonicalPath());
}

TEST_F(UserPage, leavingItAsItIsChangesNothing) {
  store.setValue(UserName, "Ada Brunner");
  store.setValue(UserLogo, path("gone.png"));
  const Project before = store.project();
  enter(User);
  EXPECT_TRUE(page(User).validatePage());
  EXPECT_EQ(store.project(), before);
}

TEST_F(UserPage, aResetPutsNameAddressAndLogoBackOnYes) {
  store.setValue(UserName, "Ada Brunner");
  store.setValue(UserStreet, "Rheinweg 1");
  store.setValue(UserZip, "4051");
  store.setValue(UserLocation, "Basel");
  store.setValue(UserLogo, "one.png");
  const int ids[] = {UserName, UserStreet, UserZip, UserLocation, UserLogo};
  const Project before = store.project();
  enter(User);
  for (const int id : ids)
    store.setValue(id, "other");

  answers.yes = false;
  const Project changed = store.project();
  page(User).cleanupPage();
  EXPECT_EQ(store.project(), changed);

  answers.yes = true;
  page(User).cleanupPage();
  EXPECT_EQ(answers.shown.last(), "Reset all changes on the user information?");
  EXPECT_EQ(answers.titles.last(), "Tevrane");
  EXPECT_EQ(changedSince(before), QVector<int>());
}

TEST_F(UserPage, aNameThatWasNoneIsNoneAgainAfterAReset) {
  store.setValue(UserName, "0.0"); // which is how a text is cleared
  ASSERT_FALSE(store.stored(UserName).isValid());
  enter(User);
  store.setValue(UserName, "Ada Brunner");
  page(User).cleanupPage();
  EXPECT_EQ(store.text(UserName), "");
}

TEST_F(UserPage, anotherLanguageKeepsTheLogo) {
  store.setValue(UserLogo, picture(80, 40));
  enter(User);
  tellOfLanguage(page(User));
  EXPECT_EQ(fileName(), path("logo.png"));
  EXPECT_EQ(pictureSize(), QSize(80, 40));
}

} // namespace
} // namespace TVR::GUI
