#include "results/PagePictures.h"

#include "data/Manager.h"
#include "data/UserMessages.h"
#include "results/ResultText.h"

#include <QFileInfo>
#include <QImageReader>

namespace TVR {

using namespace Parameter;

namespace {

bool isPicture(const QString& file) {
  return QFileInfo(file).isFile() && QImageReader(file).canRead();
}

} // namespace

QStringList unreadablePictures(const Data::Manager& store) {
  QStringList files;
  if (store.value(BackgroundImage).toBool())
    files << store.value(BackgroundImageFile).toString();
  files << store.value(UserLogo).toString();
  QStringList unreadable;
  for (const QString& file : files)
    if (!file.isEmpty() && !isPicture(file))
      unreadable << file;
  return unreadable;
}

void MissingPictures::tell(const Data::Manager& store) {
  QSet<QString> missing;
  for (const QString& file : unreadablePictures(store)) {
    missing.insert(file);
    if (!told_.contains(file))
      tellUser(Severity::Warning, programTitle,
               ResultText::tr("The picture %1 cannot be read. The page is without it.").arg(file));
  }
  told_ = missing;
}

} // namespace TVR
