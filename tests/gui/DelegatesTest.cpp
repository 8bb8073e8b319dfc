#include "gui/PageTest.h"
#include "gui/delegates/WellDemandModelDelegate.h"
#include "gui/delegates/WellModelDelegate.h"
#include "support/ContextTranslator.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QAction>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QPainter>
#include <QTableView>

#include <cfloat>
#include <memory>

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// What is drawn in a cell of a table, and what a text there would look like.
class CellPicture {
public:
  CellPicture() {
    option_.rect = QRect(0, 0, 160, 24);
    option_.state = QStyle::State_Enabled;
    option_.palette.setColor(QPalette::Text, Qt::darkBlue);
  }

  QImage of(const QAbstractItemDelegate& delegate, const QModelIndex& index) const {
    return drawn([&](QPainter& painter) { delegate.paint(&painter, option_, index); });
  }
  QImage of(const QString& text) const {
    return drawn([&](QPainter& painter) {
      painter.setPen(option_.palette.color(QPalette::Text));
      painter.drawText(option_.rect, Qt::AlignLeft | Qt::AlignVCenter, text);
    });
  }

private:
  template <class Draw>
  QImage drawn(Draw draw) const {
    QImage image(option_.rect.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    draw(painter);
    return image;
  }

  QStyleOptionViewItem option_;
};

/// Two wells at 6 l/min and two demand periods of half a year.
class DelegatesTest : public PageTest {
protected:
  DelegatesTest() {
    store.setValue(NumberOfWells, 2);
    store.setValue(UsedTemperatureChange, 3.5);
    store.setValue(MeanFlowRate, 0.0001);
    store.setValue(NumberOfDemandsPerYear, 2);
    store.resizePeriods(2);
  }

  QModelIndex well(int row, int column) { return store.wellModel()->index(row, column); }
  QModelIndex period(int row, int column) { return store.wellDemandModel()->index(row, column); }

  std::unique_ptr<QWidget> editor(const QAbstractItemDelegate& delegate, const QModelIndex& index) {
    std::unique_ptr<QWidget> made(delegate.createEditor(nullptr, QStyleOptionViewItem(), index));
    delegate.setEditorData(made.get(), index);
    return made;
  }
  std::unique_ptr<QDoubleSpinBox> box(const QAbstractItemDelegate& delegate,
                                      const QModelIndex& index) {
    return std::unique_ptr<QDoubleSpinBox>(
        qobject_cast<QDoubleSpinBox*>(editor(delegate, index).release()));
  }
  void enter(const QAbstractItemDelegate& delegate, const QModelIndex& index, double value) {
    const auto made = box(delegate, index);
    made->setValue(value);
    delegate.setModelData(made.get(), const_cast<QAbstractItemModel*>(index.model()), index);
  }
  QAction* unit(QObject& delegate, const char* data) {
    auto* const action = new QAction(&view);
    action->setCheckable(true);
    action->setData(data);
    QObject::connect(action, SIGNAL(toggled(bool)), &delegate, SLOT(timeUnitChanged(bool)));
    view.addAction(action);
    return action;
  }

  const WellModelDelegate wells;
  QTableView view;
  WellDemandModelDelegate periods{nullptr, &view};
  const CellPicture picture;
};

TEST_F(DelegatesTest, ratesArePaintedInLitresPerMinuteWithThreeDecimals) {
  EXPECT_EQ(picture.of(wells, well(0, WellModel::Rate)), picture.of(" -6.000 l/min"));
  EXPECT_EQ(picture.of(wells, well(1, WellModel::Rate)), picture.of(" 6.000 l/min"));
  EXPECT_EQ(picture.of(periods, period(2, WellDemandModel::Rate)), picture.of(" 6.000 l/min"));
  EXPECT_NE(picture.of(wells, well(1, WellModel::Rate)), picture.of(" 6.00 l/min"));
}

TEST_F(DelegatesTest, temperatureChangesArePaintedAsShortAsTheyAre) {
  EXPECT_EQ(picture.of(wells, well(1, WellModel::TemperatureChange)), picture.of(" 3.5 K"));
  store.wellModel()->setData(well(1, WellModel::Rate), 0.0001);
  store.wellModel()->setData(well(1, WellModel::TemperatureChange), 1.0 / 3);
  EXPECT_EQ(picture.of(wells, well(1, WellModel::TemperatureChange)),
            picture.of(" 0.3333333333333333 K"));
  EXPECT_EQ(picture.of(periods, period(2, WellDemandModel::TemperatureChange)),
            picture.of(" 0.3333333333333333 K"));
}

TEST_F(DelegatesTest, aWithdrawalWellShowsNoTemperatureChange) {
  EXPECT_EQ(picture.of(wells, well(0, WellModel::TemperatureChange)), picture.of(""));
  EXPECT_EQ(picture.of(periods, period(0, WellDemandModel::TemperatureChange)), picture.of(""));
}

TEST_F(DelegatesTest, durationsArePaintedInHoursWithoutDecimals) {
  EXPECT_EQ(picture.of(periods, period(0, WellDemandModel::Duration)), picture.of(" 4383 h"));
}

TEST_F(DelegatesTest, aSelectedCellIsSeen) {
  QStyleOptionViewItem option;
  option.rect = QRect(0, 0, 80, 20);
  option.showDecorationSelected = true; // as tables say
  option.state = QStyle::State_Enabled | QStyle::State_Selected | QStyle::State_Active;
  QImage image(option.rect.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  wells.paint(&painter, option, well(0, WellModel::Rate));
  EXPECT_EQ(image.pixelColor(78, 2), option.palette.color(QPalette::Active, QPalette::Highlight));
}

TEST_F(DelegatesTest, namesAndPlacesAreLeftToTheBaseClass) {
  const QItemDelegate base;
  for (const int column : {WellModel::Name, WellModel::X, WellModel::Y}) {
    EXPECT_FALSE(wells.quantity(column).has_value());
    EXPECT_EQ(picture.of(wells, well(0, column)), picture.of(base, well(0, column))) << column;
  }
  EXPECT_EQ(picture.of(periods, period(0, 0)), picture.of(base, period(0, 0)));
  store.wellModel()->setData(well(0, WellModel::X), 12.5);
  EXPECT_EQ(box(wells, well(0, WellModel::X))->value(), 12.5);
  enter(wells, well(0, WellModel::Y), 7.25);
  EXPECT_EQ(store.wellPositions().at(0), QPointF(12.5, 7.25));
}

TEST_F(DelegatesTest, ratesAreEditedInLitresPerMinute) {
  for (const auto& edited : {box(wells, well(1, WellModel::Rate)).release(),
                             box(periods, period(2, WellDemandModel::Rate)).release()}) {
    const std::unique_ptr<QDoubleSpinBox> made(edited);
    EXPECT_EQ(made->suffix(), " l/min");
    EXPECT_EQ(made->decimals(), 4);
    EXPECT_EQ(made->maximum(), 3001);
    EXPECT_EQ(made->minimum(), -3001);
    EXPECT_EQ(made->value(), 6);
  }
  enter(wells, well(1, WellModel::Rate), 7.5);
  EXPECT_EQ(store.enteredWells().rates.value(1), 7.5 / 60.0 / 1000.0);
  enter(periods, period(1, WellDemandModel::Rate), -2.5);
  EXPECT_EQ(store.enteredWells().periodRates.value(0).value(1), -2.5 / 60.0 / 1000.0);
}

TEST_F(DelegatesTest, temperatureChangesAreEditedInKelvin) {
  for (const auto& edited :
       {box(wells, well(1, WellModel::TemperatureChange)).release(),
        box(periods, period(2, WellDemandModel::TemperatureChange)).release()}) {
    const std::unique_ptr<QDoubleSpinBox> made(edited);
    EXPECT_EQ(made->suffix(), " K");
    EXPECT_EQ(made->decimals(), QDoubleSpinBox().decimals());
    EXPECT_EQ(made->maximum(), 99);
    EXPECT_EQ(made->minimum(), -99);
    EXPECT_EQ(made->value(), 3.5);
  }
  enter(wells, well(1, WellModel::TemperatureChange), -4);
  EXPECT_EQ(store.enteredWells().temperatureChanges.value(1), -4);
  enter(periods, period(3, WellDemandModel::TemperatureChange), 2);
  EXPECT_EQ(store.enteredWells().periodTemperatureChanges.value(1).value(1), 2);
}

TEST_F(DelegatesTest, durationsAreEditedInTheUnitShown) {
  const auto made = box(periods, period(0, WellDemandModel::Duration));
  EXPECT_EQ(made->suffix(), " h");
  EXPECT_EQ(made->decimals(), 0);
  EXPECT_EQ(made->minimum(), 0);
  EXPECT_EQ(made->maximum(), DBL_MAX) << "that of the editor stays";
  EXPECT_EQ(made->value(), 4383);
  enter(periods, period(0, WellDemandModel::Duration), 1000);
  EXPECT_EQ(store.enteredDurations().value(0), 3600000);
}

TEST_F(DelegatesTest, theUnitOfDurationsIsChosenByAction) {
  QAction* const hours = unit(periods, "h");
  QAction* const days = unit(periods, "d");
  QAction* const months = unit(periods, "M");
  hours->setChecked(true);
  days->trigger();
  EXPECT_TRUE(days->isChecked());
  EXPECT_FALSE(hours->isChecked());
  EXPECT_EQ(picture.of(periods, period(0, WellDemandModel::Duration)), picture.of(" 183 d"));
  months->trigger();
  EXPECT_FALSE(days->isChecked());
  EXPECT_EQ(picture.of(periods, period(0, WellDemandModel::Duration)), picture.of(" 6 M"));
  EXPECT_EQ(box(periods, period(0, WellDemandModel::Duration))->suffix(), " M");
  hours->trigger();
  EXPECT_EQ(picture.of(periods, period(0, WellDemandModel::Duration)), picture.of(" 4383 h"));
}

TEST_F(DelegatesTest, aDayAndAMonthHaveTheirSeconds) {
  unit(periods, "d")->trigger();
  enter(periods, period(0, WellDemandModel::Duration), 3);
  EXPECT_EQ(store.enteredDurations().value(0), 3 * 86400.0);
  unit(periods, "M")->trigger();
  enter(periods, period(0, WellDemandModel::Duration), 1);
  EXPECT_EQ(store.enteredDurations().value(0), 2630520.0000000005);
  EXPECT_NE(store.enteredDurations().value(0), 2630520.0);
}

TEST_F(DelegatesTest, takingACheckMarkAwayChangesNoUnit) {
  QAction* const days = unit(periods, "d");
  days->setChecked(true);
  days->setChecked(false);
  EXPECT_EQ(periods.quantity(WellDemandModel::Duration)->unit, "d");
}

TEST_F(DelegatesTest, withoutAViewTheUnitStays) {
  WellDemandModelDelegate delegate(nullptr, nullptr);
  unit(delegate, "d")->trigger();
  EXPECT_EQ(delegate.quantity(WellDemandModel::Duration)->unit, "h");
}

TEST_F(DelegatesTest, unitsOfTimeAreTranslated) {
  const ContextTranslator translator;
  unit(periods, "M")->trigger();
  EXPECT_EQ(picture.of(periods, period(0, WellDemandModel::Duration)),
            picture.of(" 6 WellDemandModel/M"));
  unit(periods, "d")->trigger();
  EXPECT_EQ(picture.of(periods, period(0, WellDemandModel::Duration)),
            picture.of(" 183 WellDemandModel/d"));
}

TEST_F(DelegatesTest, columnsAreAsWideAsWhatIsPainted) {
  QStyleOptionViewItem option;
  store.wellModel()->setData(well(0, WellModel::Rate), 1.0 / 7);
  EXPECT_GE(wells.sizeHint(option, well(0, WellModel::Rate)).width(),
            option.fontMetrics.horizontalAdvance(" 8571.429 l/min"));
}

} // namespace
} // namespace TVR::GUI
