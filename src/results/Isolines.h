#pragma once

#include "project/RunFrame.h"
#include "results/PageAccess.h"

#include <QColor>
#include <QPolygonF>
#include <QStringList>

#include <optional>
#include <vector>

namespace TVR {

class ProjectReader;

/// The lowest and the highest temperature change [K] that wells bring about.
struct ChangeRange {
  double cold = 0; ///< at most 0
  double warm = 0;
};

/// Levels of the lines of equal drawdown [m] for the drawdowns of all cells, at most ten, as texts
/// with two decimals. The range of the drawdowns always holds 0; no level is nearer to it than
/// 0.01. A range of 0.02 or less has no levels.
QStringList isohypseLevels(const std::vector<double>& drawdowns);

/// The widest range of the changes of all wells in all demand periods of the project.
ChangeRange temperatureChanges(const ProjectReader& project);

/// Levels of the isotherms [K]: +-1 and +-3 as far as the range reaches, and an additional one. A
/// negative additional level that is among them comes twice.
QVariantList isothermLevels(const ChangeRange& range, double additional);

/// The isotherms that a project asks for.
struct IsothermChoice {
  ChangeRange changes;
  QVariantList levels;
};

IsothermChoice isothermChoice(const ProjectReader& project);

/// Colour of the isotherm at a level [K]. Beyond 5 K it is an invalid colour.
QColor isothermColour(double level);

/// What a line is called: by itself, and in a legend.
struct IsolineNames {
  QString name;
  QString legend;
};

/// The names of the line at a level [K], or [m] of drawdown.
IsolineNames isothermNames(double level);
IsolineNames isohypseNames(double level);

/// How an isotherm is drawn.
struct IsothermStyle {
  QColor colour;
  bool isDashed = false;
  bool hasLabels = true;
};

/// The style of the isotherm at a level [K]: where wells cool and heat, the main levels below 0 are
/// told from those above it.
IsothermStyle isothermStyle(double level, const ChangeRange& range);

/// Largest x of the points of the map in the model, where the flow runs along +x, at least 0 [m].
double farthestAlongFlow(const QPolygonF& points, const RunFrame& frame);

/// How far downstream in the model of a run the wells lie that inject water in any demand period
/// [m]; none if there are none, or none beyond 0, where the measure of the extension begins.
std::optional<double> injectionEdge(const ProjectReader& project, const RunFrame& frame);

/// Whether any well injects water in any demand period.
bool injectsWater(const ProjectReader& project);

/// How far a line reaches beyond the wells downstream [m], rounded to the size of the cells:
/// `cellLength` [m] gives the decade, which is refined by a half. Not below 0.
double roundedExtension(double lineEdge, double wellEdge, double cellLength);

/// The lines of equal drawdown and temperature on the result page: their levels, names and colours,
/// and the extension of the 3 K isotherm that is read off them. Without a page or a lock only the
/// views are refreshed.
class Isolines {
public:
  /// `frame` is that of the run that the lines come from.
  Isolines(const PageAccess& page, const RunFrame& frame);

  /// Chooses the isotherms and dresses them, and notes the extension of the 3 K isotherm with its
  /// `time` [s] if none was larger so far. Waits `timeout` [ms] for the lock. Whether there is a
  /// page with results whose lock could be had.
  bool updateIsotherms(double time, int timeout);
  /// Dresses the isohypses. Whether there is a page whose lock could be had.
  bool updateIsohypses();
  /// Names data sets and lines in the language of the moment, and leaves them as they are else.
  /// The caller holds the lock of the page.
  void retranslate();

private:
  QVariant of(int item, int property) const;
  void set(int item, int property, const QVariant& value);
  void setLegend(int line, const QString& text);
  void selectSet(int dataSet);
  void refreshViews();
  std::optional<double> dressIsotherms();
  std::optional<double> largerExtension(std::optional<double> extension, int line);
  void dressIsohypses();
  void dressIsotherm(int line, double value, const ChangeRange& range);
  void name(int line, const IsolineNames& names);

  PageAccess page_;
  RunFrame frame_;
};

} // namespace TVR
