#include "desktop/MainWindowTest.h"
#include "page/window/ShownPage.h"
#include "results/DialogUser.h"

#include <QClipboard>
#include <QImageReader>
#include <QPrinter>
#include <QStatusBar>
#include <QXmlStreamReader>

namespace TVR::Desktop {
namespace {

class PageCommandsTest : public MainWindowTest {
protected:
  PageCommandsTest() {
    plugin.document = new FakeDocument(plugin.calls, &plugin);
    start();
    plugin.host->setWorkingPath(directory.path());
    addPage()->setContents(pageWithMap());
  }

  /// Exports the page and types this name.
  void exportTo(const char* command, const QString& name) {
    DialogUser user([&](QFileDialog& dialog) {
      proposed = dialog.selectedFiles().value(0);
      title = dialog.windowTitle();
      filter = dialog.selectedNameFilter();
      auto* const field = dialog.findChild<QLineEdit*>("fileNameEdit");
      field->selectAll();
      QTest::keyClicks(field, name);
      QTest::keyClick(field, Qt::Key_Return);
    });
    action(command)->trigger();
    EXPECT_TRUE(user.sawDialog());
  }

  QString proposed, title, filter;
};

TEST_F(PageCommandsTest, thePageIsWrittenToAPdfFile) {
  exportTo("export_pdf", path("plan.pdf"));
  EXPECT_TRUE(contentOf(path("plan.pdf")).startsWith("%PDF"));
  EXPECT_EQ(title, "Export page");
  EXPECT_EQ(filter, "PDF file (*.pdf)");
  EXPECT_EQ(window->statusBar()->currentMessage(), "Page written to " + path("plan.pdf"));
}

TEST_F(PageCommandsTest, thePageIsWrittenToAPicture) {
  exportTo("export_png", path("plan.png"));
  EXPECT_EQ(QImageReader(path("plan.png")).size(), QSize(1754, 1240)) << "A4 at 150 dots an inch";
}

TEST_F(PageCommandsTest, thePageIsWrittenToAPictureOfLines) {
  exportTo("export_svg", path("plan.svg"));
  QXmlStreamReader reader(contentOf(path("plan.svg")));
  ASSERT_TRUE(reader.readNextStartElement());
  EXPECT_EQ(reader.name(), "svg");
}

TEST_F(PageCommandsTest, aNameWithoutEndingGetsThatOfItsKind) {
  exportTo("export_pdf", path("plan"));
  EXPECT_TRUE(QFile::exists(path("plan.pdf")));
  exportTo("export_png", path("plan.2026"));
  EXPECT_TRUE(QFile::exists(path("plan.2026.png")));
}

TEST_F(PageCommandsTest, theNameOfTheProjectIsProposedInTheFolderOfTheLastFile) {
  plugin.document->become("School", "/elsewhere/first draft.tvr", false);
  exportTo("export_pdf", path("sub.pdf"));
  EXPECT_EQ(proposed, path("first draft.pdf"));
}

TEST_F(PageCommandsTest, theFolderOfTheFileIsRemembered) {
  ASSERT_TRUE(QDir(directory.path()).mkdir("sub"));
  exportTo("export_pdf", path("sub/plan.pdf"));
  EXPECT_EQ(plugin.host->workingPath(), path("sub"));
}

TEST_F(PageCommandsTest, aDialogThatIsGivenUpWritesNothing) {
  DialogUser user(giveUp);
  action("export_pdf")->trigger();
  EXPECT_TRUE(user.sawDialog());
  EXPECT_TRUE(QDir(directory.path()).isEmpty());
  EXPECT_TRUE(messenger.told.isEmpty());
}

TEST_F(PageCommandsTest, aFileThatCannotBeWrittenIsTold) {
  ASSERT_TRUE(QDir(directory.path()).mkdir("plan.pdf"));
  exportTo("export_pdf", path("plan"));
  EXPECT_EQ(messenger.told,
            QStringList{"Tevrane: The page cannot be written to " + path("plan.pdf")});
}

TEST_F(PageCommandsTest, thePageIsCopiedAsAPicture) {
  QTest::keyClick(window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(QApplication::clipboard()->image().size(), QSize(1754, 1240));
  EXPECT_EQ(window->statusBar()->currentMessage(), "Page copied to the clipboard");
}

TEST_F(PageCommandsTest, printingAndItsPreviewOpenTheirDialogs) {
  for (const char* command : {"page_setup", "print_preview", "print"}) {
    QString shown;
    QTimer::singleShot(0, window.get(), [&] {
      if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        shown = dialog->metaObject()->className();
        dialog->reject();
      }
    });
    action(command)->trigger();
    EXPECT_TRUE(shown.startsWith("QP")) << command;
  }
}

} // namespace
} // namespace TVR::Desktop
