#include "desktop/MainWindowTest.h"

#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace TVR::Desktop {
namespace {

class FileDropTest : public MainWindowTest {
protected:
  /// Whether the window takes the files.
  bool drag(const QStringList& files) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files)
      urls << QUrl::fromLocalFile(file);
    data.setUrls(urls);
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(window.get(), &enter);
    if (!enter.isAccepted())
      return false;
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window.get(), &drop);
    QApplication::processEvents();
    return true;
  }
};

TEST_F(FileDropTest, opensAProject) {
  start();
  EXPECT_TRUE(drag({"/some/plan.tvr"}));
  EXPECT_EQ(plugin.calls, QStringList{"load /some/plan.tvr"});
}

TEST_F(FileDropTest, opensABatchFile) {
  start();
  EXPECT_TRUE(drag({"/some/plan.tbat"}));
  EXPECT_EQ(plugin.calls, QStringList{"load /some/plan.tbat"});
}

TEST_F(FileDropTest, refusesOtherFiles) {
  start();
  EXPECT_FALSE(drag({"/some/picture.png"}));
  EXPECT_FALSE(drag({}));
  EXPECT_TRUE(plugin.calls.isEmpty());
}

TEST_F(FileDropTest, opensTheFirstFileOfSeveralThatIsAProject) {
  start();
  EXPECT_TRUE(drag({"/some/picture.png", "/some/a.tvr", "/some/b.tvr"}));
  EXPECT_EQ(plugin.calls, QStringList{"load /some/a.tvr"});
}

TEST_F(FileDropTest, leavesTheProjectToADialogThatIsOpen) {
  start();
  QDialog dialog;
  dialog.setModal(true);
  dialog.show();
  EXPECT_FALSE(drag({"/some/plan.tvr"}));
  dialog.hide();
  EXPECT_TRUE(drag({"/some/plan.tvr"}));
  plugin.calls.clear();
  dialog.show(); // between the drop and the end of it
  QMetaObject::invokeMethod(window.get(), "open", Q_ARG(QString, "/some/plan.tvr"));
  EXPECT_EQ(plugin.calls, QStringList());
}

TEST_F(FileDropTest, leavesTheQuestionAboutTheOpenProjectToThePlugin) {
  startWithDocument();
  plugin.document->become("School", "", true);
  drag({"/some/plan.tvr"});
  EXPECT_EQ(plugin.calls, QStringList{"load /some/plan.tvr"});
}

TEST_F(FileDropTest, aFileOnAPageIsOpenedToo) {
  start();
  Page::PageWindow* const page = addPage();
  EXPECT_FALSE(page->acceptDrops()); // so that the window around it gets what is dropped
}

} // namespace
} // namespace TVR::Desktop
