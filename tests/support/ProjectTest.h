#pragma once

#include "design/ParameterId.h"
#include "store/Manager.h"
#include "support/BatchProject.h"
#include "support/TestDirectory.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <gtest/gtest.h>

/// A test of what works on a whole project: the one store, back at its defaults before each test,
/// and a directory for files.
class ProjectTest : public testing::Test, protected TestDirectory {
protected:
  ProjectTest() { store.reset(); }

  /// Brings a project into the store by way of a batch file, which is left at the returned path.
  QString read(const BatchProject& project, const QString& name = "project.tbat") {
    QMap<QString, int> fieldIds;
    EXPECT_TRUE(project.write(path(name)));
    EXPECT_TRUE(store.read(path(name), fieldIds));
    return path(name);
  }

  /// Sets what a well does [m3/s], [K]; some parameters clear it when they are written.
  void setWell(int row, double rate, double change) {
    TVR::WellModel& wells = *store.wellModel();
    wells.setData(wells.index(row, TVR::WellModel::Rate), rate);
    wells.setData(wells.index(row, TVR::WellModel::TemperatureChange), change);
  }

  double number(int id) const { return store.value(id).toDouble(); }

  TVR::Data::Manager& store = *TVR::Data::Manager::instance();
};
