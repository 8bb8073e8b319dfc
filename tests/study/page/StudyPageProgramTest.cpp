#include "results/ShapefileHandles.h"
#include "study/page/ComputedStudy.h"

using namespace TVR;

namespace {

const QByteArray sixRuns =
    "[study]\nbase=base.tbat\nruns=6\n[vary]\nkf=log-uniform(0.0005, 0.005)\n"
    "aquifer_h=uniform(8, 12)\n[answers]\nlevels=-1, -0.5\n";

class StudyPageProgramTest : public ComputedStudy {
protected:
  StudyPageProgramTest() { write("a.tstudy", sixRuns); }
};

TEST_F(StudyPageProgramTest, aStudyBecomesPagesAndAShapefile) {
  ASSERT_EQ(study("run"), 0) << said_.toStdString();
  ASSERT_EQ(study("page", {"--page", path("a.pdf"), "--page", path("a.svg"), "--page",
                           path("a.png"), "--shapefile", path("bands.shp")}),
            0)
      << said_.toStdString();
  EXPECT_TRUE(contentOf(path("a.pdf")).startsWith("%PDF"));
  EXPECT_TRUE(contentOf(path("a.png")).startsWith("\x89PNG"));
  EXPECT_TRUE(contentOf(path("a.svg")).contains("<svg"));
  const ShapeFile shapes(SHPOpen(path("bands").toLocal8Bit(), "rb"), &SHPClose);
  ASSERT_TRUE(shapes);
  int count = 0;
  SHPGetInfo(shapes.get(), &count, nullptr, nullptr, nullptr);
  EXPECT_GE(count, 3);
}

TEST_F(StudyPageProgramTest, howGoodTheMeshIsIsKeptForThePagesOfAllLanguages) {
  ASSERT_EQ(study("run"), 0);
  ASSERT_EQ(study("page", {"--page", path("a.svg")}), 0);
  const QByteArray kept = contentOf(path("a.study/mesh.json"));
  EXPECT_TRUE(kept.contains("\"plume_length\"")) << kept.toStdString();
  EXPECT_TRUE(kept.contains("\"temperature\""));
  write("a.study/mesh.json", QByteArray(kept).replace("\"cells\": ", "\"cells\": 9"));
  const QByteArray other = contentOf(path("a.study/mesh.json"));
  ASSERT_EQ(study("page", {"--page", path("b.svg"), "--language", "de"}), 0);
  EXPECT_EQ(contentOf(path("a.study/mesh.json")), other); // it was not computed again
}

TEST_F(StudyPageProgramTest, whatAnOlderProgramKeptOfTheMeshIsComputedAgain) {
  ASSERT_EQ(study("run"), 0);
  ASSERT_EQ(study("page", {"--page", path("a.svg")}), 0);
  const QByteArray kept = contentOf(path("a.study/mesh.json"));
  write("a.study/mesh.json", QByteArray(kept).replace("\"figures\"", "\"text\""));
  ASSERT_EQ(study("page", {"--page", path("b.svg")}), 0);
  EXPECT_EQ(contentOf(path("a.study/mesh.json")), kept);
}

TEST_F(StudyPageProgramTest, thePageSpeaksTheLanguageThatIsAskedFor) {
  ASSERT_EQ(study("run"), 0);
  for (const auto& [language, word] : {std::pair("en", "Drawdown"), std::pair("de", "Absenkung"),
                                       std::pair("fr", "Rabattement")}) {
    ASSERT_EQ(study("page", {"--page", path("a.pdf"), "--language", language}), 0);
    QProcess reader;
    reader.start("pdftotext", {path("a.pdf"), "-"});
    ASSERT_TRUE(reader.waitForFinished());
    EXPECT_TRUE(QString::fromUtf8(reader.readAllStandardOutput()).contains(word)) << language;
  }
  EXPECT_EQ(study("page", {"--page", path("a.pdf"), "--language", "it"}), 2);
  EXPECT_TRUE(said_.contains("de, en or fr")) << said_.toStdString();
}

TEST_F(StudyPageProgramTest, withoutResultsThereIsNoPage) {
  EXPECT_EQ(study("page", {"--page", path("a.pdf")}), 1);
  EXPECT_TRUE(said_.contains("has no results")) << said_.toStdString();
  EXPECT_FALSE(QFile::exists(path("a.pdf")));
}

TEST_F(StudyPageProgramTest, whatItIsToWriteHasToBeSaid) {
  EXPECT_EQ(study("page"), 2);
  EXPECT_TRUE(said_.contains("--page FILE or --shapefile NAME")) << said_.toStdString();
  EXPECT_EQ(study("page", {"--page", path("a.doc")}), 2);
  EXPECT_TRUE(said_.contains("a.doc"));
  EXPECT_EQ(study("check", {"--shapefile", path("a")}), 2);
}

TEST_F(StudyPageProgramTest, aFileThatCannotBeWrittenIsNamed) {
  ASSERT_EQ(study("run"), 0);
  EXPECT_EQ(study("page", {"--page", path("nowhere/a.pdf"), "--shapefile", path("nowhere/b")}), 2);
  EXPECT_TRUE(said_.contains("nowhere/a.pdf"));
  EXPECT_TRUE(said_.contains("nowhere/b"));
}

} // namespace
