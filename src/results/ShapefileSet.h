#pragma once

#include "disk/FileReplacement.h"

namespace TVR {

/// The name of a shapefile without the ending of one of its files (".shp", ".shx" or ".dbf"). Any
/// other point belongs to the name: "lines.2026-11" stays.
QString shapefileBase(const QString& fileName);

/// The files that a shapefile consists of; the one that readers open is the last.
QStringList shapefileNames(const QString& fileName);

/// The files of a shapefile while they are written. They take the place of older ones together,
/// once all of them are complete.
class ShapefileSet {
public:
  /// `fileName` is the name of the shapefile, with or without an ending.
  explicit ShapefileSet(const QString& fileName);

  /// Whether files of these names can be written.
  bool isPossible() const { return files_.isPossible(); }

  /// What the shapefile is to be opened under as long as it is written. Its name has an ending: the
  /// library would cut another point.
  QString aside() const;

  /// Puts the files, which have to be closed, in place, with one that says that their texts are
  /// UTF-8. False, and the older ones stay, if they are not complete or can't be put there.
  bool commit();

private:
  bool isComplete() const;
  bool writeCodePage() const;

  FileReplacement files_;
};

} // namespace TVR
