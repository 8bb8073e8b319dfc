#include "results/ResultImport.h"

#include "results/DialogHost.h"
#include "results/DialogUser.h"
#include "results/ExportTest.h"
#include "support/MessageLog.h"

#include <QTextCodec>

namespace TVR {
namespace {

using namespace Sketra_lib;

/// A page that refuses some items and notes what it is offered.
class ImportingPage : public PageWithLines {
public:
  int importItem(int plot, const QDomElement& item, double version) override {
    offered << item.attribute("id");
    return refused.contains(item.attribute("id")) ? 0
                                                  : PageWithLines::importItem(plot, item, version);
  }
  QStringList offered;
  QStringList refused;
};

class ResultImportTest : public ExportTest {
protected:
  ResultImportTest() {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    host.path = path(".");
    items.mapView = page.map;
    items.results = page.grid;
  }
  QString file(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }
  static QByteArray project(const QByteArray& version, const QByteArray& items) {
    return "<TVR><__application_version><__version>" + version +
           "</__version></__application_version><__graphic><CanvasEx Version=\"1.2\"><Items>" +
           items + "</Items></CanvasEx></__graphic></TVR>";
  }
  static QByteArray grids() {
    return "<Item id=\"3\" Type=\"GraphicsGridDataItem\"/><Item id=\"4\" Type=\"GraphicsPlotItem\">"
           "<Children><Item id=\"5\" Type=\"GraphicsGridDataItem\"/></Children></Item>";
  }
  ResultImport import() { return {{&page, nullptr, store, items, mutex}, &host}; }
  QStringList messagesOf(const QString& fileName) {
    const MessageLog log;
    import().read(fileName);
    return log.lines();
  }
  bool pageIsUntouched() const {
    return page.sets.empty() && page.calls.isEmpty() && page.offered.isEmpty();
  }

  ImportingPage page;
  DialogHost host;
};

TEST_F(ResultImportTest, eachGridOfTheFileGoesToTheMapWithTheSameLabel) {
  EXPECT_TRUE(messagesOf(file("other.tvr", project("1.2", grids()))).isEmpty());
  EXPECT_EQ(page.offered, (QStringList{"3", "5"}));
  const QString onTheMap = QStringLiteral("importItem %1 1.2").arg(page.map);
  EXPECT_EQ(page.calls, (QStringList{onTheMap, onTheMap}));
  const int first = page.lastId - 1;
  EXPECT_EQ(page.properties[first][Property::Name], "File: other.tvr");
  EXPECT_EQ(page.properties[first + 1][Property::Name], "File: other.tvr");
}

TEST_F(ResultImportTest, theOwnResultsStayTheProjects) {
  const auto valuesBefore = store.values();
  import().read(file("other.tvr", project("2.0.7", grids())));
  EXPECT_EQ(items.results, page.grid);
  EXPECT_EQ(store.values(), valuesBefore);
}

TEST_F(ResultImportTest, anItemThatThePageRefusesIsSkipped) {
  page.refused << "3";
  EXPECT_TRUE(messagesOf(file("other.tvr", project("2.0.7", grids()))).isEmpty());
  EXPECT_EQ(page.offered, (QStringList{"3", "5"}));
  EXPECT_EQ(page.sets.size(), 1u);
}

TEST_F(ResultImportTest, anOldFileIsTold) {
  const QStringList message{"Host: The version of result file supports not the saving of results.\n"
                            "There are no data to import."};
  EXPECT_EQ(messagesOf(file("old.tvr", project("1.19", grids()))), message);
  EXPECT_EQ(messagesOf(file("older.tvr", "<TVR><__graphic/></TVR>")), message);
  EXPECT_TRUE(pageIsUntouched());
}

TEST_F(ResultImportTest, aFileWithoutAPageGetsTheSameMessage) {
  EXPECT_EQ(messagesOf(file("plain.tvr", "<TVR><__application_version><__version>2.0.7</__version>"
                                         "</__application_version></TVR>")),
            QStringList{"Host: The version of result file supports not the saving of results.\n"
                        "There are no data to import."});
}

TEST_F(ResultImportTest, aPageWithoutGridsImportsNothingInSilence) {
  EXPECT_TRUE(messagesOf(file("bare.tvr", project("2.0.7", ""))).isEmpty());
  EXPECT_TRUE(pageIsUntouched());
}

TEST_F(ResultImportTest, aFileThatIsNotThereIsTold) {
  EXPECT_EQ(messagesOf(path("none.tvr")),
            QStringList{"Host: The file could not open.\nThere are no data to import."});
}

TEST_F(ResultImportTest, whatIsNoXmlIsTold) {
  const QStringList message{"Host: This is not a valid xml file.\nThere are no data to import."};
  EXPECT_EQ(messagesOf(file("text.tvr", "no xml")), message);
  EXPECT_EQ(messagesOf(file("empty.tvr", "")), message);
  EXPECT_EQ(messagesOf(file("cut.tvr", project("2.0.7", grids()).chopped(20))), message);
  EXPECT_TRUE(pageIsUntouched());
}

TEST_F(ResultImportTest, aBombIsNoValidFile) {
  const QStringList message{"Host: This is not a valid xml file.\nThere are no data to import."};
  QByteArray entities = "<!ENTITY e0 \"ha\">";
  for (int i = 1; i < 40; ++i) {
    const QByteArray one = "&e" + QByteArray::number(i - 1) + ";";
    entities += "<!ENTITY e" + QByteArray::number(i) + " \"" + one + one + "\">";
  }
  EXPECT_EQ(messagesOf(file("laughs.tvr", "<!DOCTYPE TVR [" + entities + "]><TVR>&e39;</TVR>")),
            message);
  const int depth = 100000;
  EXPECT_EQ(messagesOf(file("deep.tvr", QByteArray("<TVR>").repeated(depth) +
                                            QByteArray("</TVR>").repeated(depth))),
            message);
}

TEST_F(ResultImportTest, withoutAHostTheProgramSpeaks) {
  const MessageLog log;
  ResultImport({&page, nullptr, store, items, mutex}, nullptr).read(path("none.tvr"));
  EXPECT_EQ(log.lines(),
            QStringList{"Tevrane: The file could not open.\nThere are no data to import."});
}

// The way through the dialog

TEST_F(ResultImportTest, withoutAMapTheMessageComesBeforeAnyDialog) {
  const QString message = "Host: There is no active graphic.\nThere are no data to import.";
  const DialogUser user(giveUp);
  const MessageLog log;
  items.mapView = 0;
  import().ask();
  ResultImport({nullptr, nullptr, store, items, mutex}, &host).ask();
  EXPECT_EQ(log.lines(), (QStringList{message, message}));
  QCoreApplication::processEvents();
  EXPECT_FALSE(user.sawDialog());
}

TEST_F(ResultImportTest, theFileIsAskedForAndItsDirectoryRemembered) {
  const QString fileName = file("Größe für Zürich.tvr", project("2.0.7", grids()));
  const DialogUser user([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Import results from TVR project file");
    EXPECT_EQ(dialog.nameFilters(), QStringList{"TVR project files (*.tvr)"});
    EXPECT_EQ(dialog.directory(), QDir(path(".")));
    choose(dialog, fileName);
  });
  import().ask();
  EXPECT_TRUE(user.sawDialog());
  EXPECT_EQ(host.told, QStringList{directory.path()});
  EXPECT_EQ(page.properties[page.lastId][Property::Name], QString("File: Größe für Zürich.tvr"));
}

TEST_F(ResultImportTest, anEmptyAnswerEndsItInSilence) {
  const DialogUser user(giveUp);
  const MessageLog log;
  import().ask();
  EXPECT_TRUE(user.sawDialog());
  EXPECT_TRUE(log.lines().filter("Host").isEmpty());
  EXPECT_TRUE(host.told.isEmpty());
}

} // namespace
} // namespace TVR
