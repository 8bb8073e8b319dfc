#include "results/PagePictures.h"

#include "design/ParameterId.h"
#include "disk/PictureReading.h"
#include "messages/UserMessages.h"
#include "results/ResultText.h"
#include "store/Manager.h"

#include <QFileInfo>

namespace TVR {

using namespace Parameter;

QStringList namedPictures(const Data::Manager& store) {
  QStringList files;
  if (store.value(BackgroundImage).toBool())
    files << store.value(BackgroundImageFile).toString();
  files << store.value(UserLogo).toString();
  files.removeAll({});
  return files;
}

QStringList unreadablePictures(const Data::Manager& store) {
  QStringList unreadable;
  for (const QString& file : namedPictures(store))
    if ((!QFileInfo::exists(file) || liesWherePicturesAreTaken(file)) && !isPicture(file))
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
