#pragma once

#include <QCoreApplication>
#include <QString>

#include <array>

class QSize;

namespace TVR::GUI {

/// The ground that a picture shows: its lower left corner and its extent [m].
struct PictureFrame {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

/// What a world file says of the picture beside it: six numbers in a line each, which are the size
/// of a pixel to the east, two for a rotation, the size of a pixel to the north, below 0 as rows
/// run down, and the coordinates of the centre of the upper left pixel [all in m]. A picture that
/// does not have north at the top is refused.
class WorldFile {
  Q_DECLARE_TR_FUNCTIONS(TVR::GUI::WorldFile)

public:
  /// The world file of a picture: the same name with the ending that belongs to the picture's
  /// (.pgw, .tfw or .jgw), in small or capital letters; empty if there is none.
  static QString beside(const QString& picture);
  /// Reads a regular file of at most 4096 bytes.
  static WorldFile read(const QString& file);
  static WorldFile parse(const QByteArray& text);

  /// Why the file is refused, as a sentence; empty if it is not.
  const QString& fault() const { return fault_; }
  /// The ground that a picture of this size [pixels] shows; for a file without fault only.
  PictureFrame frame(const QSize& pixels) const;

private:
  static WorldFile refused(const QString& fault);
  QString faultOfNumbers() const;

  std::array<double, 6> numbers_{};
  QString fault_;
};

} // namespace TVR::GUI
