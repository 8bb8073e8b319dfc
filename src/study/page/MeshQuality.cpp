#include "study/page/MeshQuality.h"

#include "disk/FileReplacement.h"
#include "study/work/StudyFolder.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <exception>
#include <optional>

namespace TVR::Study {

namespace {

using Quantities::FigureConvergence;
using Quantities::SiteFigure;

/// The names of SiteFigure::Kind in the file.
constexpr const char* kindNames[] = {"plume_length", "plume_width", "temperature", "drawdown_max"};
static_assert(std::size(kindNames) == SiteFigure::GreatestDrawdown + 1);

QJsonObject toJson(const FigureConvergence& figure) {
  QJsonObject json{{"figure", kindNames[figure.figure.kind]},
                   {"unit", figure.unit},
                   {"value", figure.convergence.value},
                   {"band", figure.convergence.band},
                   {"tolerance", figure.tolerance}};
  if (figure.figure.kind == SiteFigure::Temperature)
    json["well"] = figure.figure.well + 1;
  if (figure.figure.kind <= SiteFigure::PlumeWidth)
    json["level_K"] = figure.figure.level;
  return json;
}

FigureConvergence figureFrom(const QJsonObject& json) {
  const auto* const kind = std::find(std::begin(kindNames), std::end(kindNames), json["figure"]);
  FigureConvergence figure{};
  figure.figure = {static_cast<SiteFigure::Kind>(kind - std::begin(kindNames)),
                   json["level_K"].toDouble(), json["well"].toInt() - 1};
  figure.unit = json["unit"].toString();
  figure.convergence.value = json["value"].toDouble();
  figure.convergence.band = json["band"].toDouble();
  figure.tolerance = json["tolerance"].toDouble();
  return figure;
}

void keep(const MeshQuality& quality, const QString& digest, const QString& fileName) {
  QJsonArray figures;
  for (const FigureConvergence& figure : quality.convergence.figures)
    figures.append(toJson(figure));
  const QJsonObject json{{"base", digest},
                         {"version", TEVRANE_VERSION},
                         {"fault", quality.fault},
                         {"cells", quality.convergence.cells[1]},
                         {"figures", figures}};
  replaceFile(fileName, QJsonDocument(json).toJson()); // without it the next page takes longer
}

/// What an earlier page left behind; none if it is not of this base and version.
std::optional<MeshQuality> kept(const QString& digest, const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly))
    return {};
  const QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
  if (json["base"].toString() != digest || json["version"] != TEVRANE_VERSION ||
      !json["figures"].isArray())
    return {};
  MeshQuality quality{};
  quality.fault = json["fault"].toString();
  quality.convergence.cells[1] = json["cells"].toInt();
  for (const QJsonValue figure : json["figures"].toArray())
    quality.convergence.figures.push_back(figureFrom(figure.toObject()));
  return quality;
}

} // namespace

MeshQuality meshQuality(const SiteInput& site, const OutputTimes& outputTimes,
                        const QByteArray& baseDigest, const StudyFolder& folder) {
  const QString digest = baseDigest.toHex();
  if (auto earlier = kept(digest, folder.mesh()))
    return *std::move(earlier);
  MeshQuality quality{};
  try {
    quality.convergence = Quantities::meshConvergence(site, outputTimes, {});
  } catch (const std::exception& error) {
    quality.fault = error.what();
  }
  keep(quality, digest, folder.mesh());
  return quality;
}

} // namespace TVR::Study
