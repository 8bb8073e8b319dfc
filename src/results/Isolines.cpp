#include "results/Isolines.h"

#include "design/ParameterId.h"
#include "messages/PluginText.h"
#include "project/ProjectTarget.h"
#include "results/WellMarks.h"

#include <QFont>

#include <algorithm>
#include <cmath>

namespace TVR {

using namespace Parameter;
using namespace Sketra_lib::Property;

namespace {

constexpr int mostIsohypses = 10;
constexpr double leastRange = 0.02; // [m]
constexpr double leastLevel = 0.01; // [m]
constexpr double extensionLevel = 3.0;
constexpr int isohypseLabelDensity = 10;

/// A colour on the way between two. Each channel is cut to a whole number; beyond the ends it
/// leaves the range of a channel and the colour becomes invalid.
QColor mixed(const QColor& from, const QColor& to, double part) {
  const auto channel = [part](int a, int b) {
    const double value = a + (b - a) * part;
    return value > -1 && value < 256 ? static_cast<int>(value) : -1;
  };
  return QColor(channel(from.red(), to.red()), channel(from.green(), to.green()),
                channel(from.blue(), to.blue()), 255);
}

bool injects(const ProjectReader& project, int well) {
  const WellUse use = wellUse(project.wells(), well, project.count(NumberOfDemandsPerYear));
  return use == WellUse::Injection || use == WellUse::Alternating;
}

bool isMainLevel(double level) {
  return std::abs(level) == 1.0 || std::abs(level) == 3.0;
}

} // namespace

QStringList isohypseLevels(const std::vector<double>& drawdowns) {
  double low = 0.0;
  double high = 0.0;
  for (const double drawdown : drawdowns) {
    low = std::min(low, drawdown);
    high = std::max(high, drawdown);
  }
  QStringList levels;
  if (!(std::abs(high - low) > leastRange))
    return levels;
  const double step = (high - low) / 11;
  double level = low + step;
  for (int i = 0; i < mostIsohypses && high > level; ++i, level += step) {
    if (std::abs(level) < leastLevel || (!levels.isEmpty() && levels.last().toDouble() == level))
      continue;
    if (const QString text = QString::number(level, 'f', 2); !levels.contains(text))
      levels.append(text);
  }
  return levels;
}

ChangeRange temperatureChanges(const ProjectReader& project) {
  ChangeRange range{0.0, project.number(UsedTemperatureChange)};
  const WellReader wells = project.wells();
  const int periods = project.count(NumberOfDemandsPerYear);
  for (int well = 0; well < wells.count(); ++well)
    for (int period = 0; period < periods; ++period) {
      const double change = wells.temperatureChange(well, period);
      range.cold = std::min(range.cold, change);
      range.warm = std::max(range.warm, change);
    }
  return range;
}

QVariantList isothermLevels(const ChangeRange& range, double additional) {
  QVariantList levels;
  if (range.cold < 0) {
    for (const double level : {-1.0, -3.0})
      if (range.cold <= level)
        levels.append(level);
    if (additional <= 0) // Required oddity: also one that is among them already
      levels.append(additional);
  }
  for (const double level : {1.0, 3.0})
    if (range.warm >= level)
      levels.append(level);
  if (additional > 0 && !levels.contains(additional))
    levels.append(additional);
  return levels;
}

IsothermChoice isothermChoice(const ProjectReader& project) {
  const ChangeRange changes = temperatureChanges(project);
  return {changes, isothermLevels(changes, project.number(AdditionalIsotherm))};
}

QColor isothermColour(double level) {
  const QColor blue(Qt::blue);
  const QColor red(Qt::red);
  const double size = std::abs(level);
  if (size == 1.0)
    return blue;
  if (size == 3.0)
    return red;
  if (size < 1.0)
    return Qt::green;
  // Required oddity: the darker half begins at 1 K as well, so that it steps at 3 K.
  const double part = (size - 1) * 0.5;
  return size < 3.0 ? mixed(blue, red, part) : mixed(red, Qt::darkRed, part);
}

IsolineNames isothermNames(double level) {
  return {PluginText::tr("Isotherm (%1K change)").arg(level),
          PluginText::tr("Isotherm (%1K)").arg(level)};
}

IsolineNames isohypseNames(double level) {
  // Required oddity: the legend keeps the place of the value instead of the value.
  return {PluginText::tr("Isohypse (%1 m change)").arg(level), PluginText::tr("Isohypse (%1 m)")};
}

IsothermStyle isothermStyle(double level, const ChangeRange& range) {
  IsothermStyle style{isothermColour(level)};
  if (level < 0 && isMainLevel(level) && range.cold < 0 && range.warm > 0) {
    style.isDashed = range.cold * range.warm < 0;
    style.hasLabels = false;
  }
  return style;
}

double farthestAlongFlow(const QPolygonF& points, const RunFrame& frame) {
  double edge = 0;
  for (const QPointF& point : points)
    edge = std::max(edge, frame.inModel(point).x());
  return edge;
}

bool injectsWater(const ProjectReader& project) {
  const int wells = project.wells().count();
  for (int well = 0; well < wells; ++well)
    if (injects(project, well))
      return true;
  return false;
}

std::optional<double> injectionEdge(const ProjectReader& project, const RunFrame& frame) {
  const int wells = project.wells().count();
  double edge = 0;
  for (int well = 0; well < wells; ++well)
    if (injects(project, well))
      edge = std::max(edge, frame.inModel(project.wells().place(well)).x());
  return edge > 0 ? std::optional(edge) : std::nullopt;
}

double roundedExtension(double lineEdge, double wellEdge, double cellLength) {
  const double length = std::max(0.0, lineEdge - wellEdge);
  const double unit = std::pow(10.0, -std::trunc(std::log10(cellLength)));
  const double rounded = std::trunc(unit * length) / unit;
  if (length - rounded >= 0.5)
    return rounded + 0.5;
  return rounded - length >= 0.5 ? rounded - 0.5 : rounded;
}

Isolines::Isolines(const PageAccess& page, const RunFrame& frame) : page_(page), frame_(frame) {}

QVariant Isolines::of(int item, int property) const {
  return page_.window->itemProperty(item, property);
}

void Isolines::set(int item, int property, const QVariant& value) {
  page_.window->setItemProperty(item, property, value);
}

void Isolines::selectSet(int dataSet) {
  set(page_.items.results, SelectedSet, dataSet);
}

void Isolines::refreshViews() {
  if (page_.graphics)
    page_.graphics->refreshViews();
}

void Isolines::setLegend(int line, const QString& text) {
  QVariantMap legend = of(line, LegendText).toMap();
  legend["Text"] = text;
  legend["Font"] = QFont("Arial", 11);
  set(line, LegendText, legend);
}

bool Isolines::updateIsotherms(double time, int timeout) {
  bool isDressed = false;
  if (page_.window && page_.items.results < 1) {
    page_.project.setValue(MaximumExtent3K, PluginText::tr("error"));
  } else if (page_.window) {
    if (const PageLock lock(page_.mutex, timeout); lock) {
      const PageUpdate update(*page_.window);
      isDressed = true;
      selectSet(Temperature);
      const bool hasValues = of(page_.items.results, ValueCount).toInt() >= 1;
      const std::optional<double> extension = hasValues ? dressIsotherms() : 0.0;
      // What was ever reached stays; without an injection well the word stays that says so.
      if (extension && *extension >= page_.project.number(MaximumExtent3K)) {
        page_.project.setValue(MaximumExtent3K, *extension);
        page_.project.setValue(TimeOfMaximumExtent3K, time);
      }
    }
  }
  refreshViews();
  return isDressed;
}

/// The extension of the 3 K isotherms, 0 without any; none if there is no well to measure it from.
std::optional<double> Isolines::dressIsotherms() {
  const int grid = page_.items.results;
  const IsothermChoice choice = isothermChoice(page_.project);
  selectSet(Temperature);
  set(grid, Levels, choice.levels);
  std::optional<double> extension = 0.0;
  for (const QVariant& id : of(grid, IsolineIds).toList()) {
    const int line = id.toInt();
    const double value = of(line, Level).toDouble();
    dressIsotherm(line, value, choice.changes);
    if (std::abs(value) == extensionLevel)
      extension = largerExtension(extension, line);
    set(line, Visible, true);
  }
  return extension;
}

std::optional<double> Isolines::largerExtension(std::optional<double> extension, int line) {
  const std::optional<double> wells = injectionEdge(page_.project, frame_);
  if (!wells) {
    page_.project.setValue(MaximumExtent3K, PluginText::tr("error"));
    return std::nullopt;
  }
  const double edge = farthestAlongFlow(of(line, Points).value<QPolygonF>(), frame_);
  return std::max(extension.value_or(0.0),
                  roundedExtension(edge, *wells, page_.project.number(MinElementLength)));
}

void Isolines::name(int line, const IsolineNames& names) {
  set(line, Name, names.name);
  setLegend(line, names.legend);
}

void Isolines::dressIsotherm(int line, double value, const ChangeRange& range) {
  name(line, isothermNames(value));
  const IsothermStyle style = isothermStyle(value, range);
  set(line, LineColour, style.colour);
  if (style.isDashed)
    set(line, LineStyle, static_cast<int>(Qt::DashLine));
  if (!style.hasLabels)
    set(line, LabelsVisible, false);
}

void Isolines::retranslate() {
  const int grid = page_.items.results;
  if (!page_.window || grid < 1)
    return;
  const PageUpdate update(*page_.window);
  const QVariant selected = of(grid, SelectedSet);
  const auto rename = [&](int dataSet, const QString& title,
                          IsolineNames (*namesOf)(double level)) {
    selectSet(dataSet);
    if (!of(grid, SetTitle).toString().isEmpty())
      set(grid, SetTitle, title);
    for (const QVariant& line : of(grid, IsolineIds).toList())
      name(line.toInt(), namesOf(of(line.toInt(), Level).toDouble()));
  };
  rename(Drawdowns, PluginText::tr("Head"), isohypseNames);
  rename(Temperature, PluginText::tr("Temperature"), isothermNames);
  set(grid, SelectedSet, selected);
}

bool Isolines::updateIsohypses() {
  bool isDressed = false;
  if (page_.window) {
    if (const PageLock lock(page_.mutex); lock) {
      const PageUpdate update(*page_.window);
      isDressed = true;
      page_.window->setNotificationsEnabled(false);
      if (page_.items.results >= 1 && page_.items.mapView >= 1)
        dressIsohypses();
      page_.window->setNotificationsEnabled(true);
    }
  }
  refreshViews();
  return isDressed;
}

void Isolines::dressIsohypses() {
  selectSet(Drawdowns);
  for (const QVariant& id : of(page_.items.results, IsolineIds).toList()) {
    const int line = id.toInt();
    const double value = of(line, Level).toDouble();
    name(line, isohypseNames(value));
    set(line, Visible, false);
    set(line, ShownLevel, value);
    set(line, LabelDensity, isohypseLabelDensity);
    set(line, LabelsVisible, false);
    set(line, InLegend, true);
    set(line, Visible, true);
  }
}

} // namespace TVR
