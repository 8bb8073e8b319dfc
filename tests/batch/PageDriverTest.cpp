#include "DriverTest.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>

#include <sys/stat.h>

/// Runs of the program that draw pages. They have an off-screen platform, which leaves its screen
/// behind when the program ends: the address sanitizer looks for no leaks in them.
class PageDriverTest : public DriverTest {
protected:
  PageDriverTest() { qputenv("ASAN_OPTIONS", "detect_leaks=0"); }
  ~PageDriverTest() override { qunsetenv("ASAN_OPTIONS"); }

  /// Runs the small doublet with these options; it has to go well.
  void runDoublet(const QStringList& options) const {
    const Outcome outcome = run(QStringList("--quiet") + options + QStringList{site()});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
    EXPECT_EQ(outcome.err, "");
  }

  QString site() const { return write("site.tbat", smallDoublet); }
};

TEST_F(PageDriverTest, thePageBecomesAPdfOfA4) {
  runDoublet({"--page", path("site.pdf")});
  const Outcome info = runProgram("pdfinfo", {path("site.pdf")});
  EXPECT_TRUE(info.out.contains(QRegularExpression("Pages: +1\n"))) << info.out.toStdString();
  EXPECT_TRUE(info.out.contains(QRegularExpression("Page size: +84[12](\\.\\d+)? x 595")))
      << info.out.toStdString();
}

TEST_F(PageDriverTest, thePdfHasItsTextsAsText) {
  runDoublet({"--page", path("site.pdf")});
  const QString text = runProgram("pdftotext", {"-layout", path("site.pdf"), "-"}).out;
  EXPECT_TRUE(text.contains("Aquifer type")) << text.toStdString();
  EXPECT_TRUE(text.contains("Isohypse")) << text.toStdString();
}

TEST_F(PageDriverTest, thePageIsInTheLanguageThatIsAskedFor) {
  qputenv("LANGUAGE", "fr"); // what the user's own settings say does not count
  for (const auto& [language, text] :
       {std::pair{"de", "Art des Grundwasserleiters:"}, std::pair{"fr", "Type de nappe"},
        std::pair{"en", "Aquifer type:"}}) {
    runDoublet({"--language", language, "--page", path("site.pdf")});
    const QString page = runProgram("pdftotext", {"-layout", path("site.pdf"), "-"}).out;
    EXPECT_TRUE(page.contains(text)) << page.toStdString();
  }
  runDoublet({"--page", path("site.pdf")});
  const QString page = runProgram("pdftotext", {"-layout", path("site.pdf"), "-"}).out;
  EXPECT_TRUE(page.contains("Aquifer type:")) << page.toStdString();
  qputenv("LANGUAGE", "en");
}

TEST_F(PageDriverTest, thePageBecomesAPictureOf150DotsPerInch) {
  runDoublet({"--page", path("site.png")});
  const QImage image(path("site.png"));
  EXPECT_EQ(image.size(), QSize(1754, 1240));
}

TEST_F(PageDriverTest, thePageBecomesAWellFormedSvg) {
  runDoublet({"--page", path("site.svg")});
  const Outcome lint = runProgram("xmllint", {"--noout", path("site.svg")});
  EXPECT_EQ(lint.exitCode, 0) << lint.err.toStdString();
}

TEST_F(PageDriverTest, severalPagesComeFromOneRun) {
  runDoublet({"--page", path("a.svg"), "--page", path("b.png")});
  EXPECT_TRUE(QFile::exists(path("a.svg")));
  EXPECT_TRUE(QFile::exists(path("b.png")));
}

TEST_F(PageDriverTest, theTableIsWrittenBesideThePage) {
  runDoublet({"--page", path("site.png")});
  EXPECT_TRUE(contentOf(path("site.out")).startsWith("Time [s]\tTime [a]\tPump\tReturn\t\n"));
}

TEST_F(PageDriverTest, otherProgramsReadTheShapefile) {
  runDoublet({"--shapefile", path("lines")});
  const Outcome info = runProgram("ogrinfo", {"-al", path("lines.shp")});
  EXPECT_EQ(info.exitCode, 0) << info.err.toStdString();
  EXPECT_TRUE(info.out.contains("parameter (String) = draw down")) << info.out.toStdString();
  EXPECT_TRUE(info.out.contains("parameter (String) = temperature change"));
}

TEST_F(PageDriverTest, theShapefileNamesTheBatchFile) {
  runDoublet({"--shapefile", path("lines")});
  const Outcome info = runProgram("ogrinfo", {"-al", path("lines.shp")});
  EXPECT_TRUE(info.out.contains("project (String) = site\n")) << info.out.toStdString();
}

TEST_F(PageDriverTest, aPointInTheNameOfAShapefileStays) {
  runDoublet({"--shapefile", path("lines.2026-11")});
  EXPECT_TRUE(QFile::exists(path("lines.2026-11.shp")));
}

TEST_F(PageDriverTest, aShapefileWhoseNameIsTakenIsSeenBeforeTheRun) {
  ASSERT_TRUE(QDir(path(".")).mkdir("blk.shp"));
  const Outcome outcome = run({"--shapefile", path("blk"), site()});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("blk.shp can't be written: it is a directory"))
      << outcome.err.toStdString();
  EXPECT_FALSE(QFile::exists(path("site.out")));
}

TEST_F(PageDriverTest, aShapefileThatCanNotBeWrittenIsAFailedRun) {
  ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe.shp")), 0600), 0);
  const Outcome outcome = run({"--shapefile", path("pipe"), site()});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("pipe could not be written")) << outcome.err.toStdString();
  EXPECT_FALSE(QFile::exists(path("pipe.dbf")));
}

TEST_F(PageDriverTest, theEndingOfAPageMayBeInCapitals) {
  runDoublet({"--page", path("site.PNG")});
  EXPECT_FALSE(QImage(path("site.PNG")).isNull());
}

TEST_F(PageDriverTest, theIsolinesAndWellsBecomeADrawing) {
  runDoublet({"--dxf", path("lines.dxf")});
  const Outcome info = runProgram("ogrinfo", {"-al", path("lines.dxf")});
  EXPECT_EQ(info.exitCode, 0) << info.err.toStdString();
  for (const char* expected :
       {"Layer (String) = ISOTHERM_-1_K", "Layer (String) = ISOHYPSE_", "Text (String) = Return"})
    EXPECT_TRUE(info.out.contains(expected)) << expected << info.out.toStdString();
}

TEST_F(PageDriverTest, theIsolinesBecomeABareDxfText) {
  runDoublet({"--dxf-text", path("lines.dxf")});
  const QByteArray lines = contentOf(path("lines.dxf"));
  EXPECT_TRUE(lines.startsWith("0\nSECTION\n2\nENTITIES\n0\n"));
  EXPECT_TRUE(lines.contains("AcDbPolyline"));
  EXPECT_TRUE(lines.endsWith("0\nENDSEC\n0\nEOF\n"));
}

TEST_F(PageDriverTest, aSavedProjectRunsToTheSameTable) {
  runDoublet({"--save-project", path("saved.tvr"), "--output", path("first.out")});
  const Outcome again = run(
      {"--quiet", "--output", path("again.out"), "--page", path("again.png"), path("saved.tvr")});
  EXPECT_EQ(again.exitCode, 0) << again.err.toStdString();
  EXPECT_EQ(contentOf(path("again.out")), contentOf(path("first.out")));
  EXPECT_TRUE(QFile::exists(path("again.png")));
}

TEST_F(PageDriverTest, aSavedProjectHoldsItsPageAndNotTheNamesOfThisRun) {
  runDoublet({"--save-project", path("saved.tvr"), "--output", path("first.out")});
  const QByteArray project = contentOf(path("saved.tvr"));
  EXPECT_TRUE(project.contains("<CanvasEx"));
  EXPECT_TRUE(project.contains("GraphicsGridDataItem"));
  EXPECT_FALSE(project.contains("first.out"));
}

TEST_F(PageDriverTest, aProjectFileRunsWithoutAPageToo) {
  runDoublet({"--save-project", path("saved.tvr")});
  const Outcome outcome = run({"--quiet", path("saved.tvr")});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  EXPECT_TRUE(QFile::exists(path("saved.out")));
}

TEST_F(PageDriverTest, aProjectFileThatIsNoXmlIsAnInputError) {
  const Outcome outcome = run({write("broken.tvr", "<TVR><__parameter_set>")});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_TRUE(outcome.err.contains("expected well-formed XML")) << outcome.err.toStdString();
}

TEST_F(PageDriverTest, picturesFromElsewhereAreLeftOutUnlessAskedFor) {
  ASSERT_TRUE(QDir(directory.path()).mkpath("project"));
  QImage logo(30, 30, QImage::Format_RGB32);
  logo.fill(QColor(1, 2, 253));
  ASSERT_TRUE(logo.save(path("logo.png")));
  ASSERT_TRUE(logo.save(path("project/logo.png")));
  runDoublet({"--save-project", path("saved.tvr")});
  const auto shows = [&](const QString& picture, const QStringList& options) {
    QString project = contentOf(path("saved.tvr"));
    project.replace(QRegularExpression("<name>user_logo</name>\\s*<value/>"),
                    "<name>user_logo</name><value>" + picture + "</value>");
    EXPECT_TRUE(project.contains(picture));
    const Outcome outcome = run(QStringList{"--quiet", "--page", "seen.svg", "--page", "seen.png"} +
                                options + QStringList{write("project/site.tvr", project.toUtf8())});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
    const bool isTold = outcome.err.contains(picture + " is left out");
    const QImage page(path("seen.png"));
    bool isSeen = false;
    for (int y = 0; y < page.height() && !isSeen; ++y)
      for (int x = 0; x < page.width() && !isSeen; ++x)
        isSeen = page.pixelColor(x, y) == QColor(1, 2, 253);
    EXPECT_NE(isTold, isSeen) << picture.toStdString();
    return isSeen;
  };
  EXPECT_TRUE(shows(path("project/logo.png"), {}));
  EXPECT_FALSE(shows(path("logo.png"), {}));
  EXPECT_FALSE(shows(path("project/../logo.png"), {}));
  EXPECT_TRUE(shows(path("logo.png"), {"--pictures"}));
}

TEST_F(PageDriverTest, noRunTouchesTheSettingsOfTheUser) {
  const QByteArray former = qgetenv("XDG_CONFIG_HOME");
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(path("settings")));
  ASSERT_TRUE(QDir(directory.path()).mkpath("settings"));
  runDoublet({"--page", path("site.png"), "--save-project", path("saved.tvr")});
  EXPECT_EQ(run({"--quiet", "--page", path("again.png"), path("saved.tvr")}).exitCode, 0);
  EXPECT_EQ(run({"--quiet", path("site.tbat")}).exitCode, 0);
  qputenv("XDG_CONFIG_HOME", former);
  EXPECT_EQ(
      QDir(path("settings")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
      QStringList());
}

TEST_F(PageDriverTest, aPageOfAnotherKindIsRefusedBeforeTheRun) {
  const Outcome outcome = run({"--page", path("site.doc"), site()});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_FALSE(QFile::exists(path("site.out")));
}

TEST_F(PageDriverTest, aPageInADirectoryThatIsMissingIsSeenBeforeTheRun) {
  const Outcome outcome = run({"--page", path("none/site.pdf"), site()});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("none/site.pdf can't be written")) << outcome.err.toStdString();
  EXPECT_FALSE(QFile::exists(path("site.out")));
}
