#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace TVR {

class ProjectReader;

/// The files of pictures that the project wants on its page: the map's background and the logo.
QStringList namedPictures(const ProjectReader& project);

/// Those that can't be read as pictures, though they lie where pictures are taken from.
QStringList unreadablePictures(const ProjectReader& project);

/// Tells the user which pictures of a project are missing from its page, each one once for as long
/// as it is.
class MissingPictures {
public:
  void tell(const ProjectReader& project);

private:
  QSet<QString> told_;
};

} // namespace TVR
