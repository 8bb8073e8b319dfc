#pragma once

#include "project/Units.h"

#include <QByteArray>
#include <QFile>
#include <QMap>
#include <QString>

#include <utility>
#include <vector>

/// The text of a batch file, put together key by key. As it is made it describes a run of two years
/// on some hundred cells, without exchange of heat with the rock around and without wells.
class BatchProject {
public:
  BatchProject() {
    set("main", "simulation_time", 2);
    set("main", "max_number_of_fv_elements", 150);
    set("main", "cell_increase_factor", 60);
    set("thermic", "exchange_caprock", "false");
    set("thermic", "exchange_bedrock", "false");
    set("hydraulic", "groundwater_gradient", 0.2);
    set("installation", "number_of_demands_per_year", 1);
  }

  /// A withdrawal well and an injection well 40 m east of it.
  static BatchProject doublet() {
    BatchProject project;
    project.addWell("Pump", 0, 0, -0.001);
    project.addWell("Return", 40, 0, 0.001, -3);
    return project;
  }

  /// The doublet with two demand periods of half a year and different rates in them.
  static BatchProject seasons() {
    BatchProject project = doublet();
    project.addPeriod(TVR::secondsPerYear / 2);
    project.addPeriod(TVR::secondsPerYear / 2);
    project.addPeriodRates({{-0.001, 0}, {-0.002, 0}, {0.001, -3}, {0.002, 4}});
    return project;
  }

  BatchProject& set(const QString& section, const QString& key, const QString& value) {
    sections_[section][key] = value;
    return *this;
  }
  BatchProject& set(const QString& section, const QString& key, double value) {
    return set(section, key, QString::number(value, 'g', 17));
  }

  /// Position in [m], rate in [m3/s], change in [K].
  void addWell(const QString& name, double x, double y, double rate, double change = 0) {
    const QString row = QStringLiteral("well_model\\%1\\%2").arg(++wells_);
    set("installation", row.arg(0), '"' + name + '"');
    set("installation", row.arg(1), x);
    set("installation", row.arg(2), y);
    set("installation", row.arg(3), rate);
    set("installation", row.arg(4), change);
    set("installation", "number_of_wells", wells_);
    set("installation", "well_model\\size", wells_);
  }

  /// Duration in [s].
  void addPeriod(double duration) {
    set("installation", QStringLiteral("demand_model\\%1\\0").arg(++periods_), duration);
    set("installation", "demand_model\\size", periods_);
    set("installation", "number_of_demands_per_year", periods_);
  }

  /// Rates [m3/s] and temperature changes [K]: all periods of the first well, then the next.
  void addPeriodRates(const std::vector<std::pair<double, double>>& rows) {
    int count = 0;
    for (const auto& [rate, change] : rows) {
      const QString row = QStringLiteral("well_demand_model\\%1\\%2").arg(++count);
      set("installation", row.arg(2), rate);
      set("installation", row.arg(3), change);
    }
    set("installation", "well_demand_model\\size", count);
  }

  QByteArray text() const {
    QString text;
    for (auto section = sections_.begin(); section != sections_.end(); ++section) {
      text += '[' + section.key() + "]\n";
      for (auto entry = section->begin(); entry != section->end(); ++entry)
        text += entry.key() + '=' + entry.value() + '\n';
    }
    return text.toUtf8();
  }

  bool write(const QString& fileName) const {
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(text()) >= 0;
  }

private:
  QMap<QString, QMap<QString, QString>> sections_;
  int wells_ = 0;
  int periods_ = 0;
};
