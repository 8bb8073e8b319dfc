#include "support/ProjectTest.h"

#include <QSignalSpy>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// The one store of the program with a project of two periods, and another store beside it.
class SecondStoreTest : public ProjectTest {
protected:
  SecondStoreTest() {
    read(BatchProject::seasons());
    store.wellDemandModel();
  }

  Data::Manager second;
};

} // namespace

TEST_F(SecondStoreTest, beginsWithTheDefaults) {
  store.reset();
  second.setValue(GuiLanguage, store.value(GuiLanguage)); // which a reset leaves
  EXPECT_TRUE(second.project().values == store.project().values);
}

TEST_F(SecondStoreTest, takesAProjectWithItsTables) {
  second.setProject(store.project());
  ASSERT_TRUE(second.hasWellModel() && second.hasDemandModel() && second.hasWellDemandModel());
  EXPECT_TRUE(second.project() == store.project());
  ASSERT_TRUE(second.wellModel() && second.demandModel() && second.wellDemandModel());
  EXPECT_EQ(second.wellModel()->stepRate(1, 1, Qt::EditRole), 0.002);
  EXPECT_EQ(second.demandModel()->rowCount(), 2);
  EXPECT_EQ(second.wellDemandModel()->rowCount(), 4);
}

TEST_F(SecondStoreTest, hasTablesOfItsOwn) {
  second.setProject(store.project());
  EXPECT_NE(second.wellModel(), store.wellModel());
  EXPECT_NE(second.demandModel(), store.demandModel());
}

TEST_F(SecondStoreTest, runsItsRulesWithoutAWordToTheOther) {
  second.setProject(store.project());
  const Project before = store.project();
  const QSignalSpy changes(&store, &Data::Manager::dataChanged);
  const QSignalSpy runs(&store, &Data::Manager::startSimulation);
  const QSignalSpy graphics(&store, &Data::Manager::updateCurrentGraphic);
  second.setValue(HydraulicConductivity, 0.02);
  second.setValue(NumberOfWells, 4);
  second.setValue(NumberOfDemandsPerYear, 3);
  second.setValue(GroundwaterGradient, 0.5);
  second.setValue(SimulationUpToDate, false);
  second.setValue(DefaultWellPosition, QPointF(1, 2));
  EXPECT_FALSE(second.project() == before);
  EXPECT_TRUE(store.project() == before);
  EXPECT_EQ(changes.count() + runs.count() + graphics.count(), 0);
}

TEST_F(SecondStoreTest, endsWithoutATraceInTheOther) {
  const Project before = store.project();
  {
    Data::Manager third;
    third.setProject(store.project());
    third.setValue(NumberOfWells, 5);
  }
  EXPECT_TRUE(store.project() == before);
  EXPECT_EQ(store.wellModel()->rowCount(), 2);
}
