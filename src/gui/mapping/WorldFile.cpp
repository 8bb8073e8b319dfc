#include "gui/mapping/WorldFile.h"

#include "messages/PrintableText.h"

#include <QFile>
#include <QFileInfo>
#include <QSize>

#include <cmath>

namespace TVR::GUI {

namespace {

constexpr qint64 largestFile = 4096; ///< [bytes]

enum Place : unsigned { PixelWidth, RowRotation, ColumnRotation, PixelHeight, CentreX, CentreY };

QString endingFor(const QString& pictureEnding) {
  static const struct {
    const char* picture;
    const char* world;
  } endings[] = {{"png", "pgw"}, {"tif", "tfw"}, {"tiff", "tfw"}, {"jpg", "jgw"}, {"jpeg", "jgw"}};
  for (const auto& ending : endings)
    if (pictureEnding.compare(ending.picture, Qt::CaseInsensitive) == 0)
      return ending.world;
  return {};
}

} // namespace

QString WorldFile::beside(const QString& picture) {
  const QFileInfo info(picture);
  const QString ending = endingFor(info.suffix());
  if (ending.isEmpty())
    return {};
  const QString stem = info.path() + '/' + info.completeBaseName() + '.';
  for (const QString& file : {stem + ending, stem + ending.toUpper()})
    if (QFileInfo::exists(file))
      return file;
  return {};
}

WorldFile WorldFile::refused(const QString& fault) {
  WorldFile result;
  result.fault_ = fault;
  return result;
}

WorldFile WorldFile::read(const QString& file) {
  QFile device(file);
  // A pipe would never end to be opened, a device never to be read.
  if (!QFileInfo(file).isFile() || !device.open(QIODevice::ReadOnly))
    return refused(tr("It cannot be read."));
  const QByteArray text = device.read(largestFile + 1);
  if (text.size() > largestFile)
    return refused(tr("It is larger than six numbers can be."));
  return parse(text);
}

WorldFile WorldFile::parse(const QByteArray& text) {
  WorldFile result;
  const QList<QByteArray> words = text.simplified().split(' ');
  for (int i = 0; i < words.size(); ++i) {
    bool isNumber = false;
    const double number = words[i].toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number))
      return refused(
          tr("\"%1\" is no number.").arg(printable(QString::fromUtf8(words[i].left(20)))));
    if (static_cast<std::size_t>(i) < result.numbers_.size())
      result.numbers_[static_cast<std::size_t>(i)] = number;
  }
  if (static_cast<std::size_t>(words.size()) != result.numbers_.size())
    return refused(tr("It holds %1 numbers instead of 6.").arg(words.size()));
  result.fault_ = result.faultOfNumbers();
  return result;
}

QString WorldFile::faultOfNumbers() const {
  // So little turns the last row of ten thousand by a hundredth of a pixel.
  constexpr double negligible = 1e-6;
  const double pixel = std::abs(numbers_[PixelWidth]);
  if (std::abs(numbers_[RowRotation]) > negligible * pixel ||
      std::abs(numbers_[ColumnRotation]) > negligible * pixel)
    return tr("It turns the picture: north has to be at the top.");
  if (numbers_[PixelWidth] <= 0)
    return tr("It mirrors the picture: the first number has to be above 0.");
  if (numbers_[PixelHeight] >= 0)
    return tr("It puts the picture upside down: the fourth number has to be below 0.");
  return {};
}

PictureFrame WorldFile::frame(const QSize& pixels) const {
  const double width = numbers_[PixelWidth] * pixels.width();
  const double height = -numbers_[PixelHeight] * pixels.height();
  const double left = numbers_[CentreX] - numbers_[PixelWidth] / 2;
  const double top = numbers_[CentreY] - numbers_[PixelHeight] / 2;
  return {left, top - height, width, height};
}

} // namespace TVR::GUI
