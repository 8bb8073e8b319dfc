#include "results/PagePictures.h"

#include "design/ParameterId.h"
#include "disk/PictureReading.h"
#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "project/ProjectReader.h"

#include <QFileInfo>

namespace TVR {

using namespace Parameter;

QStringList namedPictures(const ProjectReader& project) {
  QStringList files;
  if (project.flag(BackgroundImage))
    files << project.text(BackgroundImageFile);
  files << project.text(UserLogo);
  files.removeAll({});
  return files;
}

QStringList unreadablePictures(const ProjectReader& project) {
  QStringList unreadable;
  for (const QString& file : namedPictures(project))
    if ((!QFileInfo::exists(file) || liesWherePicturesAreTaken(file)) && !isPicture(file))
      unreadable << file;
  return unreadable;
}

void MissingPictures::tell(const ProjectReader& project) {
  QSet<QString> missing;
  for (const QString& file : unreadablePictures(project)) {
    missing.insert(file);
    if (!told_.contains(file))
      tellUser(Severity::Warning, programTitle,
               PluginText::tr("The picture %1 cannot be read. The page is without it.").arg(file));
  }
  told_ = missing;
}

} // namespace TVR
