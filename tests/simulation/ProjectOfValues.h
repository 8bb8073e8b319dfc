#pragma once

#include "project/ProjectTarget.h"

#include <vector>

/// A project that is only a value: no store, no rule, no table. Notes what is written and made.
class ProjectOfValues final : public TVR::ProjectTarget {
public:
  QVariant stored(int id) const override { return project.values.value(id); }
  const TVR::Wells& enteredWells() const override { return project.wells; }
  const TVR::ByPeriod& enteredDurations() const override { return project.durations; }
  bool setValue(int id, QVariant value) override {
    written.push_back(id);
    project.values[id] = value;
    return true;
  }
  void setStored(int id, const QVariant& value) override { project.values[id] = value; }
  const TVR::ParameterKeys& keys() const override { return keys_; }
  int makeTable(TVR::ProjectTable table) override {
    made.push_back(table);
    return TVR::rowsOf(*this, table);
  }
  void setCells(TVR::ProjectTable, const std::vector<TVR::TableCell>&) override {}
  void resizePeriods(int) override {}
  void giveAllPlaces() override {}
  void clearWellEntries() override {}
  void setResultFrame(const TVR::RunFrame&) override {}
  void takePage(const QByteArray&) override {}

  TVR::Project project;
  std::vector<int> written; ///< ids, in their order
  std::vector<TVR::ProjectTable> made;

private:
  const TVR::ParameterKeys keys_;
};
