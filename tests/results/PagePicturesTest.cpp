#include "results/PagePictures.h"

#include "support/MessageLog.h"
#include "support/ProjectTest.h"

#include <QImage>

#include <sys/stat.h>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

class PagePicturesTest : public ProjectTest {
protected:
  QString picture(const QString& name) {
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_TRUE(image.save(path(name)));
    return path(name);
  }
  QString text(const QString& name) {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
    return path(name);
  }
};

} // namespace

TEST_F(PagePicturesTest, readableOnesAreNotMissing) {
  store.setValue(UserLogo, picture("logo.png"));
  store.setValue(BackgroundImage, true);
  store.setValue(BackgroundImageFile, picture("map.jpg"));
  EXPECT_TRUE(unreadablePictures(store).isEmpty());
}

TEST_F(PagePicturesTest, aProjectNeedNotHaveAny) {
  store.setValue(UserLogo, "");
  store.setValue(BackgroundImage, true);
  store.setValue(BackgroundImageFile, "");
  EXPECT_TRUE(unreadablePictures(store).isEmpty());
}

TEST_F(PagePicturesTest, oneThatIsNotThereOrNoPictureIsMissing) {
  store.setValue(UserLogo, path("none.png"));
  store.setValue(BackgroundImage, true);
  store.setValue(BackgroundImageFile, text("map.png"));
  EXPECT_EQ(unreadablePictures(store), (QStringList{path("map.png"), path("none.png")}));
}

TEST_F(PagePicturesTest, aBackgroundThatIsNotShownIsNotMissing) {
  store.setValue(UserLogo, "");
  store.setValue(BackgroundImage, false);
  store.setValue(BackgroundImageFile, path("none.png"));
  EXPECT_TRUE(unreadablePictures(store).isEmpty());
}

TEST_F(PagePicturesTest, aPipeIsNoPicture) {
  ASSERT_EQ(mkfifo(path("pipe").toLocal8Bit(), 0600), 0);
  store.setValue(UserLogo, path("pipe"));
  EXPECT_EQ(unreadablePictures(store), QStringList{path("pipe")});
}

TEST_F(PagePicturesTest, aMissingOneIsToldOnceForAsLongAsItIs) {
  MissingPictures pictures;
  const QString told = QStringLiteral("Tevrane: The picture %1 cannot be read. The page is without "
                                      "it.")
                           .arg(path("logo.png"));
  store.setValue(UserLogo, path("logo.png"));
  const MessageLog log;
  pictures.tell(store);
  pictures.tell(store);
  EXPECT_EQ(log.lines(), QStringList{told});
  picture("logo.png");
  pictures.tell(store);
  EXPECT_TRUE(QFile::remove(path("logo.png")));
  pictures.tell(store);
  EXPECT_EQ(log.lines(), (QStringList{told, told}));
}
