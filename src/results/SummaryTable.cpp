#include "results/SummaryTable.h"

#include "design/ParameterId.h"
#include "messages/PluginText.h"
#include "project/ParameterTable.h"
#include "project/ProjectReader.h"
#include "project/RunFrame.h"
#include "project/Units.h"
#include "results/Isolines.h"

namespace TVR {

using namespace Parameter;

namespace {

constexpr char noValue[] = "nan";

/// Years with one decimal, which is left out where it is 0. The order of the divisions is required.
QString years(double seconds) {
  return QString::number(seconds / secondsPerHour / daysPerYear / hoursPerDay, 'f', 1)
      .remove(".0")
      .remove(",0");
}

/// Required oddity: cut by digits only, so that the point of a 0 stays.
QString withoutTrailingZeros(QString number) {
  while (number.endsWith('0'))
    number.chop(1);
  return number;
}

class SummaryBuilder {
public:
  SummaryBuilder(const ProjectReader& project, const RunFrame& frame,
                 const std::vector<double>& stepTimes, double time, double extension)
      : project_(project), frame_(frame), stepTimes_(stepTimes), time_(time),
        extension_(extension) {}

  QString build() {
    html_ = "<table width=\"100%\" border=\"0\" cellpadding=\"1\" "
            "style=\"font-size:9pt;font-family:Arial\">";
    if (isSet(EnergyWizardDone))
      addEnergy();
    addAquifer();
    if (isSet(WellWizardDone))
      addWells();
    addSimulation();
    addResults();
    return html_ + "</table>";
  }

private:
  double number(int id) const { return project_.number(id); }
  bool isSet(int id) const { return project_.flag(id); }
  /// Whether a word stands where a number belongs.
  bool isText(int id) const {
    bool isNumber = false;
    const QString text = project_.text(id);
    text.toDouble(&isNumber);
    return !isNumber && !text.isEmpty();
  }
  bool isMissing(int id) const { return project_.text(id) == noValue; }
  QString label(int id) const { return ParameterName::label(id); }

  /// What stands before a value: French puts a blank before the colon.
  static QString before(const QString& title) { return PluginText::tr("%1: ").arg(title); }
  void addRow(const QString& title, const QString& value) {
    html_ += "<tr><td>" + before(title) + "</td><td align=\"right\">" + value + "</td></tr>";
  }
  void addRow(const QString& title, const QString& value, const QString& unit) {
    html_ += "<tr><td>" + before(title) + "</td><td align=\"right\">" + value + "</td><td>" + unit +
             "</td></tr>";
  }
  void addBoldRow(const QString& title, const QString& value, const QString& unit) {
    html_ += "<tr><td><b>" + before(title) + "</b></td><td align=\"right\"><b>" + value +
             "</b></td><td><b>" + unit + "</b></td></tr>";
  }
  static QString unit(int id) { return richUnit(parameterRow(id)); }
  /// A number in the parameter's shown unit.
  static QString shown(int id, double number, int places) {
    const ParameterRow& row = parameterRow(id);
    return QString::number(row.toShown(number), row.shown.format, places);
  }
  void addNumber(const QString& title, int id, int places) {
    addRow(title, shown(id, number(id), places), unit(id));
  }
  void addNumber(int id, int places) { addNumber(label(id), id, places); }
  void addNote(const QString& text) { html_ += "<tr><td colspan=\"3\">" + text + "</td></tr>"; }
  void addFlag(int id) {
    addRow(label(id), isSet(id) ? PluginText::tr("true") : PluginText::tr("false"));
  }

  void addEnergy() {
    const int type = project_.count(EnergyDemandType);
    if (type < 2) {
      html_ += "<tr><td>" + before(label(BuildingType)) + "</td><td colspan=\"2\">" +
               project_.text(BuildingType) + "</td></tr>";
    } else {
      addNumber(CoolingDemand, 0);
      addNumber(HeatingDemand, 0);
    }
    const QString demand = label(EnergyDemand);
    addNumber(type == 2 ? PluginText::tr("effectiv %1").arg(demand) : demand, EnergyDemand, 0);
    if (type < 2)
      addNumber(Power, 0);
    addNumber(SystemCop, 1);
  }

  void addAquifer() {
    const bool isUnconfined = isSet(AquiferUnconfined);
    addRow(PluginText::tr("Aquifer type"),
           isUnconfined ? PluginText::tr("unconfined") : PluginText::tr("confined"));
    if (isUnconfined) {
      addNumber(AquiferBasis, 1);
      addNumber(GroundwaterTable, 1);
    } else {
      addNumber(AquiferThickness, 1);
    }
    addNumber(HydraulicConductivity, 1);
    addRow(label(GroundwaterGradient),
           withoutTrailingZeros(shown(GroundwaterGradient, number(GroundwaterGradient), 6)),
           unit(GroundwaterGradient));
  }

  void addWells() {
    const QString text = project_.periods().size() <= 1
                             ? PluginText::tr("%1 (injection or pumping): ")
                             : PluginText::tr("%1 : ");
    html_ += "<tr><td>" + text.arg(label(NumberOfWells)) + "</td><td align=\"right\">" +
             QString::number(project_.count(NumberOfWells)) + "</td></tr>";
    const double flow = isMissing(MeanFlowRate) ? injectedFlow() : number(MeanFlowRate);
    addRow(label(MeanFlowRate), shown(MeanFlowRate, flow, 2), unit(MeanFlowRate));
    if (!isMissing(MaximumFlowRate))
      addNumber(MaximumFlowRate, 2);
    if (!isMissing(Drawdown))
      addNumber(PluginText::tr("Maximum drawdown in withdrawal wells"), Drawdown, 2);
    addNumber(DMinUsed, 0);
  }

  /// Sum of the rates of the second half of the wells [m3/s].
  double injectedFlow() const {
    const WellReader wells = project_.wells();
    double sum = 0;
    for (int row = wells.count() / 2; row < wells.count(); ++row)
      sum += wells.rate(row);
    return sum;
  }

  void addSimulation() {
    const double end = stepTimes_.empty() ? number(SimulationTime) : stepTimes_.back();
    addRow(label(SimulationTime), years(time_ >= 0 ? time_ : end), unit(SimulationTime));
    if (areApart(end, number(SimulationTime)))
      addNote(PluginText::tr("The simulation ends after %1 a instead of %2 a")
                  .arg(inYears(end), 0, 'f', 2)
                  .arg(inYears(number(SimulationTime)), 0, 'f', 2));
    addFlag(ExchangeCaprock);
    addFlag(ExchangeBedrock);
    if (number(ThermalDispersivity) > 0)
      addNumber(PluginText::tr("%1 length").arg(label(ThermalDispersivity)), ThermalDispersivity,
                1);
    else
      addNote(PluginText::tr("Hydraulic dispersion not inlcuded"));
  }

  void addResults() {
    html_ += "<tr></tr>";
    if (extension_ < 0 && isText(MaximumExtent3K)) {
      // In the first column, so that it leaves the widths of the others as they are.
      html_ += "<tr><td><b>" + before(label(MaximumExtent3K)) +
               PluginText::tr("could not be determined, since %1").arg(reasonWithoutExtent()) +
               "</b></td></tr>";
      return;
    }
    const double extension = extension_ < 0 ? number(MaximumExtent3K) : extension_;
    addBoldRow(label(MaximumExtent3K), shown(MaximumExtent3K, extension, 0), unit(MaximumExtent3K));
    if (time_ > number(TimeOfMaximumExtent3K))
      addBoldRow(label(TimeOfMaximumExtent3K), years(number(TimeOfMaximumExtent3K)),
                 unit(TimeOfMaximumExtent3K));
  }

  QString reasonWithoutExtent() const {
    if (!injectsWater(project_))
      return PluginText::tr("no well injects water");
    if (!injectionEdge(project_, frame_))
      return PluginText::tr("along the groundwater flow no injection well lies at a coordinate "
                            "above 0");
    return PluginText::tr("there are no results on the map");
  }

  const ProjectReader& project_;
  const RunFrame& frame_;
  const std::vector<double>& stepTimes_;
  const double time_;
  const double extension_;
  QString html_;
};

} // namespace

QString createSummaryTable(const ProjectReader& project, const RunFrame& frame,
                           const std::vector<double>& stepTimes, double time, double extension) {
  return SummaryBuilder(project, frame, stepTimes, time, extension).build();
}

void showSummary(const PageAccess& page, const QString& table) {
  if (page.window && page.items.summary >= 1)
    page.window->setItemProperty(page.items.summary, Sketra_lib::Property::Html, table);
}

} // namespace TVR
