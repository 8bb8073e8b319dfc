#include "disk/PictureReading.h"

#include "support/TestDirectory.h"

#include <QDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace TVR {
namespace {

class PictureReading : public testing::Test, protected TestDirectory {
protected:
  ~PictureReading() override { takePicturesFrom({}); }

  QString picture(const QString& name, const char* form = "PNG") const {
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_TRUE(image.save(path(name), form));
    return path(name);
  }
  QString text(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }
  static void expectNone(const QString& file) {
    EXPECT_TRUE(readImage(file).isNull());
    EXPECT_FALSE(isPicture(file));
    EXPECT_TRUE(pictureSize(file).isEmpty());
  }
};

TEST_F(PictureReading, aPictureIsToldByItsContent) {
  EXPECT_EQ(readImage(picture("map.png")).size(), QSize(3, 2));
  EXPECT_EQ(readImage(picture("map.txt", "JPG")).size(), QSize(3, 2));
  EXPECT_TRUE(isPicture(path("map.txt")));
  expectNone(text("text.png", "no picture"));
  expectNone(path("none.png"));
}

TEST_F(PictureReading, theSizeOfAPictureNeedsNoMoreThanItsBeginning) {
  EXPECT_EQ(pictureSize(picture("map.png")), QSize(3, 2));
  EXPECT_EQ(pictureSize(picture("map.txt", "JPG")), QSize(3, 2));
  QFile file(picture("cut.png"));
  ASSERT_TRUE(file.resize(file.size() - 16)); // the end of its pixels is not there
  EXPECT_EQ(pictureSize(file.fileName()), QSize(3, 2));
}

TEST_F(PictureReading, aPipeAndADirectoryAreNotOpened) {
  ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600), 0);
  expectNone(path("pipe.png")); // would wait for ever
  ASSERT_TRUE(QDir(directory.path()).mkdir("directory.png"));
  expectNone(path("directory.png"));
}

TEST_F(PictureReading, aFileThatIsTooLargeIsNotOpened) {
  QFile file(picture("large.png"));
  ASSERT_TRUE(file.resize(largestPictureFile));
  EXPECT_FALSE(readImage(file.fileName()).isNull());
  ASSERT_TRUE(file.resize(largestPictureFile + 1));
  expectNone(file.fileName());
}

TEST_F(PictureReading, aDamagedPictureIsNone) {
  QFile file(picture("map.png"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  expectNone(text("cut.png", file.read(file.size() / 2)));
}

TEST_F(PictureReading, aDrawingThatCouldNameOtherFilesIsNoPicture) {
  expectNone(text("drawing.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"3\" "
                                 "height=\"2\"><rect width=\"3\" height=\"2\"/></svg>"));
}

TEST_F(PictureReading, picturesCanBeTakenFromOneDirectoryOnly) {
  ASSERT_TRUE(QDir(directory.path()).mkpath("project/maps"));
  ASSERT_TRUE(QDir(directory.path()).mkpath("project2"));
  picture("project/logo.png");
  picture("project/maps/map.png");
  picture("project2/other.png");
  ASSERT_TRUE(QFile::link(path("project2/other.png"), path("project/link.png")));
  takePicturesFrom(path("project"));
  EXPECT_FALSE(readImage(path("project/logo.png")).isNull());
  EXPECT_FALSE(readImage(path("project/maps/map.png")).isNull());
  expectNone(path("project2/other.png"));
  expectNone(path("project/../project2/other.png"));
  expectNone(path("project/link.png"));
}

} // namespace
} // namespace TVR
