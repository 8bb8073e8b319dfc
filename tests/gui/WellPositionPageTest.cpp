#include "gui/PositionPageTest.h"
#include "gui/delegates/WellDemandModelDelegate.h"
#include "gui/delegates/WellModelDelegate.h"
#include "support/ContextTranslator.h"

#include <QHeaderView>

namespace TVR::GUI {
namespace {

using namespace Parameter;

TEST_F(PositionPageTest, enteringShowsTheCountsAndDrawsTheWells) {
  store.setValue(NumberOfWells, 6);
  open();
  EXPECT_EQ(get<QSpinBox>("wellCountSpinBox").value(), 6);
  EXPECT_EQ(get<QSpinBox>("demandStepsSpinBox").value(), 1);
  EXPECT_EQ(redrawn->count(), 1);
  EXPECT_EQ(wells().model()->rowCount(), 6);
  EXPECT_FALSE(wells().currentIndex().isValid());
  EXPECT_TRUE(qobject_cast<WellModelDelegate*>(wells().itemDelegate()));
  EXPECT_TRUE(qobject_cast<WellDemandModelDelegate*>(periods().itemDelegate()));
}

TEST_F(PositionPageTest, theFormHasItsRangesAndTexts) {
  open();
  const auto& count = get<QSpinBox>("wellCountSpinBox");
  EXPECT_EQ(count.minimum(), 1);
  EXPECT_EQ(count.maximum(), 999);
  const auto& steps = get<QSpinBox>("demandStepsSpinBox");
  EXPECT_EQ(steps.minimum(), 1);
  EXPECT_EQ(steps.maximum(), QSpinBox().maximum());
  EXPECT_EQ(textOf("label"), "Well positions");
  EXPECT_EQ(get<QGroupBox>("groupBox").title(), "Wells");
  EXPECT_TRUE(get<QGroupBox>("groupBox").isFlat());
  EXPECT_EQ(textOf("wellCountLabel"),
            "Well count (injection and pumping well number are the same):");
  EXPECT_EQ(textOf("demandStepsLabel"),
            "Number of demand steps per year (for all wells the same):");
  EXPECT_EQ(get<QCheckBox>("validationCheckBox").text(), "validate well rates");
  EXPECT_EQ(get<QGroupBox>("groupBoxRecommendation").title(), "Recommended distance between wells");
  EXPECT_EQ(textOf("textLabel2_2"), "Between two injection wells or two withdrawal wells");
  EXPECT_EQ(textOf("textLabel2_2_2"), "Between an injection and a withdrawal well");
  EXPECT_EQ(textOf("textLabel5") + textOf("textLabel5_2"), "mm");
  EXPECT_EQ(wells().editTriggers(), QAbstractItemView::AllEditTriggers);
  for (const QTableView* const table : {&wells(), &periods()}) {
    EXPECT_TRUE(table->alternatingRowColors());
    EXPECT_TRUE(table->verticalHeader()->isHidden());
    EXPECT_TRUE(table->horizontalHeader()->stretchLastSection());
  }
}

TEST_F(PositionPageTest, enteringAndLeavingStoresTheDerivedRatesAndNothingElse) {
  store.setValue(NumberOfWells, 3);
  store.wellModel();
  store.wellDemandModel();
  setRate(0, -2 * flow / 3);
  store.resizePeriods(1);
  store.setStored(EnergyWizardDone, true);
  const Project before = store.project();
  open();
  EXPECT_TRUE(store.project().values == before.values);
  get<QCheckBox>("validationCheckBox").setChecked(false);
  EXPECT_TRUE(validates());
  Project expected = before;
  expected.wells.rates = {{0, -2 * flow / 3}, {1, 2 * flow / 3}, {2, 2 * flow / 3}};
  expected.wells.temperatureChanges = {{0, 0.0}, {1, 3.0}, {2, 3.0}};
  EXPECT_TRUE(store.project() == expected);
}

TEST_F(PositionPageTest, aTemperatureChangeThatWaitsForItsRateComesBackWithIt) {
  store.setCells(ProjectTable::Well, {{1, WellColumns::TemperatureChange, 5.0}});
  open();
  EXPECT_EQ(store.wells().temperatureChange(1), 3.0);
  EXPECT_TRUE(validates());
  EXPECT_EQ(store.wells().temperatureChange(1), 5.0);
}

TEST_F(PositionPageTest, aCountBeyondItsBoxIsNotCutByEnteringThePage) {
  store.setValue(NumberOfWells, 1200);
  store.setValue(NumberOfDemandsPerYear, 120);
  open();
  EXPECT_EQ(get<QSpinBox>("wellCountSpinBox").value(), 999);
  EXPECT_EQ(number(NumberOfWells), 1200);
  EXPECT_EQ(number(NumberOfDemandsPerYear), 120);
}

TEST_F(PositionPageTest, bothDistancesAreTheRadiusOfInfluence) {
  store.setValue(RadiusOfInfluence, 12.6);
  store.setValue(DMin, 44.0);
  open();
  EXPECT_EQ(textOf("InjectionPumpingDistance"), "13");
  EXPECT_EQ(textOf("TwoWellDistance"), "13");
}

TEST_F(PositionPageTest, onePeriodHasTheSimpleView) {
  open();
  EXPECT_EQ(get<QPushButton>("extendPushButton").text(), "Extend");
  for (const char* const name :
       {"extendTableView", "demandStepsLabel", "demandStepsSpinBox", "validationCheckBox"})
    EXPECT_FALSE(isShown(name)) << name;
  EXPECT_FALSE(wells().isColumnHidden(WellModel::Rate));
  EXPECT_FALSE(wells().isColumnHidden(WellModel::TemperatureChange));
}

TEST_F(PositionPageTest, severalPeriodsHaveTheExtendedView) {
  openWithPeriods(2);
  EXPECT_EQ(get<QPushButton>("extendPushButton").text(), "Simplify");
  for (const char* const name :
       {"extendTableView", "demandStepsLabel", "demandStepsSpinBox", "validationCheckBox"})
    EXPECT_TRUE(isShown(name)) << name;
  EXPECT_TRUE(wells().isColumnHidden(WellModel::Rate));
  EXPECT_TRUE(wells().isColumnHidden(WellModel::TemperatureChange));
}

TEST_F(PositionPageTest, theButtonChangesBetweenTheViews) {
  openWithPeriods(2);
  get<QCheckBox>("validationCheckBox").setChecked(false);
  click("extendPushButton");
  EXPECT_EQ(get<QPushButton>("extendPushButton").text(), "Extend");
  EXPECT_FALSE(isShown("extendTableView"));
  EXPECT_FALSE(isShown("demandStepsSpinBox"));
  EXPECT_FALSE(wells().isColumnHidden(WellModel::Rate));
  EXPECT_FALSE(isShown("validationCheckBox"));
  EXPECT_TRUE(get<QCheckBox>("validationCheckBox").isChecked());
  click("extendPushButton");
  EXPECT_EQ(get<QPushButton>("extendPushButton").text(), "Simplify");
  EXPECT_TRUE(isShown("extendTableView"));
  EXPECT_TRUE(wells().isColumnHidden(WellModel::TemperatureChange));
  EXPECT_FALSE(isShown("validationCheckBox")) << "only entering the page shows it";
}

TEST_F(PositionPageTest, aNewWellCountClearsTheWellsFlagAtOnceAndForGood) {
  store.setStored(WellWizardDone, true);
  open();
  QTest::keyClicks(&get<QSpinBox>("wellCountSpinBox"), "4");
  EXPECT_EQ(number(NumberOfWells), 2) << "it may go on: 40";
  QTest::keyClick(&get<QSpinBox>("wellCountSpinBox"), Qt::Key_Up);
  wizard->reject();
  EXPECT_NE(number(NumberOfWells), 2);
  EXPECT_EQ(wells().model()->rowCount(), static_cast<int>(number(NumberOfWells)));
  EXPECT_FALSE(store.flag(WellWizardDone));
}

TEST_F(PositionPageTest, theSameWellCountChangesNoFlag) {
  store.setStored(WellWizardDone, true);
  open();
  QMetaObject::invokeMethod(page, "changeWellCount", Q_ARG(int, 2));
  EXPECT_TRUE(store.flag(WellWizardDone));
}

TEST_F(PositionPageTest, aNewNumberOfStepsClearsTheEnergyFlagAndCountsTheYear) {
  openWithPeriods(2);
  store.setStored(EnergyWizardDone, true);
  QMetaObject::invokeMethod(page, "changeDemandStepNumber", Q_ARG(int, 2));
  EXPECT_TRUE(store.flag(EnergyWizardDone));
  get<QSpinBox>("demandStepsSpinBox").setValue(3);
  EXPECT_EQ(number(NumberOfDemandsPerYear), 3);
  EXPECT_FALSE(store.flag(EnergyWizardDone));
  EXPECT_EQ(store.demandModel()->rowCount(), 3);
  EXPECT_EQ(textOf("totalDemandTimeLabel"), "Total duration: 11688.0 h ( 1.3 a)");
}

TEST_F(PositionPageTest, newPeriodsMakeTheYearLonger) {
  open();
  get<QSpinBox>("demandStepsSpinBox").setValue(3);
  EXPECT_EQ(textOf("totalDemandTimeLabel"), "Total duration: 14610.0 h ( 1.7 a)");
}

TEST_F(PositionPageTest, theTotalFollowsTheDurations) {
  openWithPeriods(2);
  store.demandModel()->setData(store.demandModel()->index(0, 0), 360000.0);
  EXPECT_EQ(textOf("totalDemandTimeLabel"), "Total duration: 4483.0 h ( 0.5 a)");
  store.demandModel()->setData(store.demandModel()->index(0, 0), 0.0);
  store.demandModel()->setData(store.demandModel()->index(1, 0), 0.5);
  EXPECT_EQ(textOf("totalDemandTimeLabel"), "Total duration: 8760.0 h ( 1.0 a)")
      << "less than a second counts as a year of 365 days";
}

TEST_F(PositionPageTest, theDemandTableIsEmptyUntilAWellIsChosen) {
  openWithPeriods(2);
  EXPECT_EQ(periods().model()->rowCount(), 0);
  press(wells(), 1, WellModel::Name);
  ASSERT_EQ(periods().model()->rowCount(), 2);
  EXPECT_EQ(periods().model()->index(0, 0).data(), "Well 2");
  press(wells(), 0, WellModel::X);
  EXPECT_EQ(periods().model()->index(1, 0).data(), "Well 1");
}

TEST_F(PositionPageTest, wellsAreChosenByKeyboardToo) {
  openWithPeriods(2);
  press(wells(), 0, WellModel::Name);
  key(wells(), Qt::Key_Down);
  EXPECT_EQ(periods().model()->index(0, 0).data(), "Well 2");
}

TEST_F(PositionPageTest, aChosenWellShowsItsOwnPeriodsOnly) {
  store.setValue(NumberOfWells, 12);
  openWithPeriods(2);
  press(wells(), 0, WellModel::Name);
  EXPECT_EQ(periods().model()->rowCount(), 2) << "Well 10, 11 and 12 begin alike";
}

TEST_F(PositionPageTest, aNameWithADashIsThereFromTheBeginning) {
  store.setCells(ProjectTable::Well, {{1, WellColumns::Name, "north-east"}});
  openWithPeriods(2);
  ASSERT_EQ(periods().model()->rowCount(), 2);
  EXPECT_EQ(periods().model()->index(0, 0).data(), "north-east");
}

TEST_F(PositionPageTest, theContextMenuHasTheUnitsOfTime) {
  openWithPeriods(2);
  EXPECT_EQ(periods().contextMenuPolicy(), Qt::ActionsContextMenu);
  const QList<QAction*> actions = periods().actions();
  ASSERT_EQ(actions.size(), 3);
  EXPECT_EQ(actions[0]->text(), "Time unit: hours");
  EXPECT_EQ(actions[1]->text(), "Time unit: days");
  EXPECT_EQ(actions[2]->text(), "Time unit: months");
  EXPECT_EQ(actions[0]->data().toString() + actions[1]->data().toString() +
                actions[2]->data().toString(),
            "hdM");
  EXPECT_TRUE(actions[0]->isChecked());
  press(wells(), 0, WellModel::Name);
  actions[1]->trigger();
  EXPECT_FALSE(actions[0]->isChecked());
  press(periods(), 0, WellDemandModel::Duration);
  key(periods(), Qt::Key_F2);
  type(periods(), "100");
  key(periods(), Qt::Key_Return);
  EXPECT_EQ(store.enteredDurations().value(0), 100 * 86400.0);
}

TEST_F(PositionPageTest, enteringAgainBeginsWithHours) {
  openWithPeriods(2);
  periods().actions().at(2)->trigger();
  auto* const filtered = periods().model();
  wizard->back();
  wizard->next();
  ASSERT_EQ(periods().actions().size(), 3);
  EXPECT_TRUE(periods().actions().at(0)->isChecked());
  EXPECT_EQ(periods().model(), filtered);
}

TEST_F(PositionPageTest, missingCoordinatesAreNamedOneByOne) {
  store.setCells(ProjectTable::Well, {{0, WellColumns::Name, "a<b"}});
  open();
  store.setStored(NumberOfWells, 3); // one more than there are places
  get<QCheckBox>("validationCheckBox").setChecked(false);
  EXPECT_FALSE(validates());
  EXPECT_EQ(feedback(), "<body style=color:red><center><b>"
                        "Please provide a valid x coordinate for the well: Well 3<br>"
                        "Please provide a valid y coordinate for the well: Well 3<br>"
                        "</b></center></body>");
}

TEST_F(PositionPageTest, aResetBringsBothCountsBack) {
  open();
  get<QSpinBox>("wellCountSpinBox").setValue(8);
  get<QSpinBox>("demandStepsSpinBox").setValue(4);
  wizard->back();
  EXPECT_EQ(answers.shown,
            QStringList{"Reset all changes on the well position and demand parameter?"});
  EXPECT_EQ(answers.titles, QStringList{"Tevrane"});
  EXPECT_EQ(number(NumberOfWells), 2);
  EXPECT_EQ(number(NumberOfDemandsPerYear), 1);
  EXPECT_EQ(store.demandModel()->rowCount(), 1);
}

TEST_F(PositionPageTest, aResetBringsPeriodsBackThatWereMadeElsewhere) {
  open();
  get<QSpinBox>("wellCountSpinBox").setValue(8);
  store.resizePeriods(5);
  wizard->back();
  EXPECT_EQ(store.demandModel()->rowCount(), 1);
}

TEST_F(PositionPageTest, aResetAnsweredWithNoLeavesAll) {
  open();
  get<QSpinBox>("wellCountSpinBox").setValue(8);
  answers.yes = false;
  wizard->back();
  EXPECT_EQ(answers.shown.size(), 1);
  EXPECT_EQ(number(NumberOfWells), 8);
}

TEST_F(PositionPageTest, nothingChangedIsNothingToReset) {
  open();
  setRate(0, -2 * flow);
  wizard->back();
  EXPECT_TRUE(answers.shown.isEmpty());
  EXPECT_EQ(store.wells().rate(0), -2 * flow);
}

TEST_F(PositionPageTest, coordinatesThatAreTypedMoveTheWellOnTheMap) {
  open();
  redrawn->clear();
  press(wells(), 1, WellModel::X);
  type(wells(), "25.5");
  key(wells(), Qt::Key_Return);
  EXPECT_EQ(store.wellPositions().at(1), QPointF(25.5, 0));
  EXPECT_EQ(redrawn->count(), 1);
  EXPECT_EQ(number(DMinUsed), 25.5);
}

TEST_F(PositionPageTest, aWellThatIsDraggedShowsInTheTableAtOnce) {
  open();
  press(wells(), 1, WellModel::X);
  const auto* const box = qobject_cast<QDoubleSpinBox*>(&keysOf(wells()));
  ASSERT_NE(box, nullptr);
  drag(1, {30, 40});
  EXPECT_EQ(box->value(), 30);
  EXPECT_EQ(number(DMinUsed), 50);
  key(wells(), Qt::Key_Tab);
  EXPECT_EQ(store.wellPositions().at(1), QPointF(30, 40));
}

TEST_F(PositionPageTest, anotherLanguageShowsAtOnce) {
  openWithPeriods(2);
  const QString context = "TVR::GUI::WellPositionAndUsageWizardPage/";
  get<QLabel>("feedback_page1").setText("kept");
  const ContextTranslator translator;
  QCoreApplication::processEvents();
  EXPECT_EQ(get<QPushButton>("extendPushButton").text(), context + "Simplify");
  EXPECT_EQ(periods().actions().at(2)->text(), context + "Time unit: months");
  EXPECT_TRUE(textOf("totalDemandTimeLabel").startsWith(context + "Total duration: 8766.0 h"))
      << textOf("totalDemandTimeLabel").toStdString();
  EXPECT_EQ(wells().model()->headerData(3, Qt::Horizontal), "WellModel/Mean annual rate");
  EXPECT_EQ(feedback(), "kept");
}

TEST_F(PositionPageTest, aPageThatWasNeverEnteredKeepsItsLanguage) {
  const std::unique_ptr<QWizardPage> never(positionPages({store}, nullptr).first());
  const ContextTranslator translator;
  QEvent event(QEvent::LanguageChange);
  QCoreApplication::sendEvent(never.get(), &event);
  EXPECT_EQ(never->findChild<QPushButton*>("extendPushButton")->text(), "Extend");
}

} // namespace
} // namespace TVR::GUI
