#include "results/ShapefileHandles.h"
#include "support/SmallDoublet.h"
#include "support/TestDirectory.h"

#include <QProcess>

#include <gtest/gtest.h>

using namespace TVR;

namespace {

const QByteArray sixRuns =
    "[study]\nbase=base.tbat\nruns=6\n[vary]\nkf=log-uniform(0.0005, 0.005)\n"
    "aquifer_h=uniform(8, 12)\n[answers]\nlevels=-1, -0.5\n";

/// Runs the program as a user does, in a directory of its own.
class StudyPageProgramTest : public testing::Test, protected TestDirectory {
protected:
  StudyPageProgramTest() {
    write("base.tbat", smallDoublet);
    write("a.tstudy", sixRuns);
  }

  void write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  /// The exit code; `said_` is what was said of errors.
  int study(const QString& command, const QStringList& more = {}) {
    QProcess process;
    process.start(TEVRANE_STUDY_PROGRAM, QStringList{command, path("a.tstudy"), "--quiet"} + more);
    EXPECT_TRUE(process.waitForFinished(240'000));
    said_ = QString::fromUtf8(process.readAllStandardError());
    return process.exitCode();
  }

  QString said_;
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

TEST_F(StudyPageProgramTest, theLineAboutTheMeshIsKept) {
  ASSERT_EQ(study("run"), 0);
  ASSERT_EQ(study("page", {"--page", path("a.svg")}), 0);
  const QByteArray kept = contentOf(path("a.study/mesh.json"));
  EXPECT_TRUE(kept.contains("Mesh of the base (")) << kept.toStdString();
  write("a.study/mesh.json", QByteArray(kept).replace("Mesh of the base (", "Grid of the base ("));
  ASSERT_EQ(study("page", {"--page", path("b.svg")}), 0);
  EXPECT_TRUE(contentOf(path("a.study/mesh.json")).contains("Grid of the base ("));
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
  EXPECT_EQ(study("page", {"--page", path("nowhere/a.pdf"), "--shapefile", path("nowhere/b")}), 1);
  EXPECT_TRUE(said_.contains("nowhere/a.pdf"));
  EXPECT_TRUE(said_.contains("nowhere/b"));
}

} // namespace
