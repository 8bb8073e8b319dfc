#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace TVR {

namespace Data {
class Manager;
}

/// The files of pictures that the project wants on its page: the map's background and the logo.
QStringList namedPictures(const Data::Manager& store);

/// Those that can't be read as pictures, though they lie where pictures are taken from.
QStringList unreadablePictures(const Data::Manager& store);

/// Tells the user which pictures of a project are missing from its page, each one once for as long
/// as it is.
class MissingPictures {
public:
  void tell(const Data::Manager& store);

private:
  QSet<QString> told_;
};

} // namespace TVR
