#include "gui/mapping/WorldFile.h"

#include <QFile>
#include <QSize>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace TVR::GUI {
namespace {

class WorldFileTest : public testing::Test {
protected:
  QString write(const char* name, const QByteArray& content) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }

  QTemporaryDir folder;
};

TEST(WorldFileNumbers, theOriginIsTheOuterCornerOfTheLowerLeftPixel) {
  const WorldFile world = WorldFile::parse("2\n0\n0\n-3\n101\n298.5\n");
  ASSERT_EQ(world.fault(), "");
  const PictureFrame frame = world.frame({50, 100});
  EXPECT_EQ(frame.x, 100);
  EXPECT_EQ(frame.y, 0);
  EXPECT_EQ(frame.width, 100);
  EXPECT_EQ(frame.height, 300);
}

TEST(WorldFileNumbers, endsOfLinesAndExponentsAreTakenAsTheyCome) {
  const WorldFile world =
      WorldFile::parse("  2.0e0\r\n0.0\r\n-0.0\r\n-2.0\r\n6.00001E+5\r\n+199999.0\r\n\r\n");
  ASSERT_EQ(world.fault(), "");
  EXPECT_EQ(world.frame({1, 1}).x, 600000);
  EXPECT_EQ(world.frame({1, 1}).y, 199998);
}

TEST(WorldFileNumbers, aRotationIsRefused) {
  for (const char* const text : {"1\n0.01\n0\n-1\n0\n0", "1\n0\n-0.01\n-1\n0\n0"})
    EXPECT_EQ(WorldFile::parse(text).fault(), "It turns the picture: north has to be at the top.");
}

TEST(WorldFileNumbers, aRotationThatMovesNoPixelIsNone) {
  EXPECT_EQ(WorldFile::parse("1\n1e-9\n-1e-9\n-1\n0\n0").fault(), "");
}

TEST(WorldFileNumbers, aPictureUpsideDownOrMirroredIsRefused) {
  EXPECT_EQ(WorldFile::parse("1\n0\n0\n1\n0\n0").fault(),
            "It puts the picture upside down: the fourth number has to be below 0.");
  EXPECT_EQ(WorldFile::parse("-1\n0\n0\n-1\n0\n0").fault(),
            "It mirrors the picture: the first number has to be above 0.");
  EXPECT_NE(WorldFile::parse("0\n0\n0\n-1\n0\n0").fault(), "");
  EXPECT_NE(WorldFile::parse("1\n0\n0\n0\n0\n0").fault(), "");
}

TEST(WorldFileNumbers, thereAreSix) {
  EXPECT_EQ(WorldFile::parse("1\n0\n0\n-1\n0").fault(), "It holds 5 numbers instead of 6.");
  EXPECT_EQ(WorldFile::parse("1\n0\n0\n-1\n0\n0\n7").fault(), "It holds 7 numbers instead of 6.");
}

TEST(WorldFileNumbers, whatIsNoNumberIsNamed) {
  EXPECT_EQ(WorldFile::parse("1,5\n0\n0\n-1\n0\n0").fault(), "\"1,5\" is no number.");
  EXPECT_EQ(WorldFile::parse("1\n0\n0\n-1\nnan\n0").fault(), "\"nan\" is no number.");
  EXPECT_EQ(WorldFile::parse("1\n0\n0\n-1\n0\n1e999").fault(), "\"1e999\" is no number.");
  EXPECT_EQ(WorldFile::parse("\x1b[1m\n").fault(), "\"\\u001b[1m\" is no number.");
  EXPECT_EQ(WorldFile::parse(QByteArray(100, 'x')).fault(),
            '"' + QString(20, 'x') + "\" is no number.");
  EXPECT_NE(WorldFile::parse("").fault(), "");
}

TEST_F(WorldFileTest, itBearsTheNameOfThePictureAndTheEndingOfItsForm) {
  const QString pgw = write("plan.old.pgw", "");
  EXPECT_EQ(WorldFile::beside(folder.filePath("plan.old.png")), pgw);
  EXPECT_EQ(WorldFile::beside(folder.filePath("plan.old.PNG")), pgw);
  EXPECT_EQ(WorldFile::beside(folder.filePath("plan.old.jpg")), "");
  EXPECT_EQ(WorldFile::beside(folder.filePath("plan.old.bmp")), "");
  EXPECT_EQ(WorldFile::beside(folder.filePath("plan.png")), "");
  const QString tfw = write("scan.TFW", "");
  EXPECT_EQ(WorldFile::beside(folder.filePath("scan.tif")), tfw);
  EXPECT_EQ(WorldFile::beside(folder.filePath("scan.tiff")), tfw);
  const QString jgw = write("photo.jgw", "");
  EXPECT_EQ(WorldFile::beside(folder.filePath("photo.jpeg")), jgw);
}

TEST_F(WorldFileTest, aFileIsRead) {
  const WorldFile world = WorldFile::read(write("a.pgw", "2\n0\n0\n-2\n1\n1\n"));
  EXPECT_EQ(world.fault(), "");
  EXPECT_EQ(world.frame({10, 10}).width, 20);
}

TEST_F(WorldFileTest, aHugeFileIsRefused) {
  const QByteArray numbers = "2\n0\n0\n-2\n1\n1\n";
  const QByteArray largest = numbers + QByteArray(4096 - numbers.size(), '\n');
  EXPECT_EQ(WorldFile::read(write("a.pgw", largest)).fault(), "");
  EXPECT_EQ(WorldFile::read(write("b.pgw", largest + '\n')).fault(),
            "It is larger than six numbers can be.");
}

TEST_F(WorldFileTest, whatIsNoFileIsRefused) {
  EXPECT_EQ(WorldFile::read(folder.path()).fault(), "It cannot be read.");
  EXPECT_EQ(WorldFile::read(folder.filePath("none.pgw")).fault(), "It cannot be read.");
  const QString pipe = folder.filePath("pipe.pgw");
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  EXPECT_EQ(WorldFile::read(pipe).fault(), "It cannot be read."); // would wait for ever
}

} // namespace
} // namespace TVR::GUI
