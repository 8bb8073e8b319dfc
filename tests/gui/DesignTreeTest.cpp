#include "gui/DesignEditorTest.h"

#include <QLineEdit>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class DesignTreeTest : public DesignEditorTest {
protected:
  void heatAndCool() {
    store.setValue(EnergyDemandType, 2);
    editor.updatePropertyView();
  }
  /// The ids of rows, those below one in brackets behind it.
  static QString ids(const QList<QtBrowserItem*>& items) {
    QStringList texts;
    for (const QtBrowserItem* const item : items) {
      QString text = QString::number(DesignTree::idOf(item->property()));
      if (item->property()->isGroup())
        text += '(' + ids(item->children()) + ')';
      texts << text;
    }
    return texts.join(' ');
  }
};

/// What may be typed into a row.
struct Typeable {
  int id;
  int type;
  double minimum;
  double maximum;
  double step; ///< 0 for none
  int decimals;
  const char* unit;
};

constexpr int whole = QMetaType::Int;
constexpr int real = QMetaType::Double;

constexpr Typeable typeable[] = {
    {107, whole, 0, 100000000, 100, 0, " kWh/a"},
    {108, whole, 0, 8766, 24, 0, " h"},
    {109, whole, 0, 100000, 100, 0, " kW"},
    {110, real, -100, 100, 1, 1, " K"},
    {125, whole, 0, 100000000, 100, 0, " kWh/a"},
    {126, whole, 0, 8766, 24, 0, " h"},
    {127, whole, 0, 100000, 100, 0, " kW"},
    {128, real, -100, 100, 1, 1, " K"},
    {149, real, 0, 10, 1, 1, " -"},
    {120, real, 0, 100, 0, 4, " m/100m"},
    {59, real, 0, 1, 0, 5, " m/s"},
    {34, real, 0, 100, 0, 2, " %"},
    {88, real, 1, 1000, 0, 2, " m"},
    {121, real, 0, 1000, 0, 2, " m bgl"},
    {87, real, 0, 1000, 0, 2, " m bgl"},
    {169, real, 0, 100000000, 0, 2, ""},
    {170, real, 0, 100000000, 0, 2, ""},
    {63, whole, 1, 10000, 1, 0, ""},
    {132, whole, 1, 10000, 1, 0, ""},
    {119, whole, 0, 360, 1, 0, " °"},
    {148, real, 0.1, 10000, 1, 2, " a"},
    {160, whole, 1, 10000000, 100, 0, " -"},
    {133, real, 0.25, 10, 0.1, 1, " m"},
    {134, real, 0, 10000, 1, 0, " m"},
    {26, whole, 1, 100, 10, 0, " %"},
    {146, real, 1e-10, 1, 0, 10, " -"},
    {92, real, 1e-10, 1, 0, 10, " -"},
    {147, real, 1e-10, 1, 0, 10, " -"},
    {93, real, 1e-10, 1, 0, 10, " -"},
};

} // namespace

TEST_F(DesignTreeTest, showsTheDesignInItsGroups) {
  heatAndCool();
  EXPECT_EQ(ids(browser().topLevelItems()).toStdString(),
            "1(141) 3(8(107 108 109 110) 7(125 126 127 128 149)) 2(120 59 34 91 88 121 87) "
            "4(94 83(169 170)) 5(63 132 119 148 113 114 111 100) "
            "10(160 133 134 26 11(146 92) 12(147 93)) 13(32)");
}

TEST_F(DesignTreeTest, showsAHeatDemandAloneInThePlaceOfHeating) {
  EXPECT_EQ(ids({&item(HeadingHeatingSpecification)}).toStdString(), "7(50 126 64 159 149)");
  heatAndCool();
  EXPECT_EQ(ids({&item(HeadingHeatingSpecification)}).toStdString(), "7(125 126 127 128 149)");
  EXPECT_EQ(property(HeatingPower).propertyName(), "Heating power");
  EXPECT_EQ(editor.tree().propertyOfId().count(Power), 0U);
}

TEST_F(DesignTreeTest, numbersHaveTheirLimitsStepsAndUnits) {
  heatAndCool();
  for (const Typeable& expected : typeable) {
    const QtProperty& row = property(expected.id);
    const auto attribute = [&](const char* name) {
      return editor.tree().manager()->attributeValue(&row, name);
    };
    EXPECT_EQ(row.propertyType(), expected.type) << expected.id;
    EXPECT_EQ(attribute("minimum").toDouble(), expected.minimum) << expected.id;
    EXPECT_EQ(attribute("maximum").toDouble(), expected.maximum) << expected.id;
    EXPECT_EQ(attribute("singleStep").toDouble(), expected.step) << expected.id;
    EXPECT_EQ(attribute("decimals").toInt(), expected.decimals) << expected.id;
    EXPECT_EQ(attribute("prefix").toString().toStdString(), expected.unit) << expected.id;
    EXPECT_EQ(attribute("format"), expected.id == 59 ? QVariant("g") : QVariant()) << expected.id;
  }
  for (const int id : {91, 94, 113, 114, 111, 100})
    EXPECT_EQ(property(id).propertyType(), QMetaType::Bool) << id;
  EXPECT_EQ(property(ProjectName).propertyType(), QMetaType::QString);
  EXPECT_EQ(text(MaximumExtent3K).right(2), " m");
}

TEST_F(DesignTreeTest, groupsAndValuesAreCalledAsTheirParameters) {
  EXPECT_EQ(property(HeadingGroundwaterModel).propertyName(), "Groundwater flow model");
  EXPECT_EQ(property(HydraulicConductivity).propertyName(), "Hydraulic conductivity");
  EXPECT_EQ(property(EffectivePorosity).propertyName(), "Porosity");
}

TEST_F(DesignTreeTest, hidesWhatTheProjectHasNoUseFor) {
  EXPECT_FALSE(isShown(HeadingCoolingSpecification));
  EXPECT_FALSE(isShown(HeatingPeakLoadDuration));
  EXPECT_TRUE(isShown(Power));
  heatAndCool();
  EXPECT_TRUE(isShown(HeadingCoolingSpecification));
  store.setValue(HeatingPeakLoadDuration, 1800);
  store.setValue(CoolingOnly, true);
  editor.updatePropertyView();
  EXPECT_FALSE(isShown(HeadingHeatingSpecification));
}

TEST_F(DesignTreeTest, aConductivityIsTypedWithAPowerOfTen) {
  edit();
  type(HydraulicConductivity, "2.5e-5");
  EXPECT_EQ(property(HydraulicConductivity).value(), QVariant(2.5e-5));
  EXPECT_EQ(text(HydraulicConductivity), "2.5e-05 m/s");
}

TEST_F(DesignTreeTest, aConductivityAboveTheRangeBecomesTheLargest) {
  edit();
  type(HydraulicConductivity, "7");
  EXPECT_EQ(property(HydraulicConductivity).value(), QVariant(1.0));
}

TEST_F(DesignTreeTest, otherNumbersAreTypedInBoxesWithinTheirRange) {
  edit();
  type(AquiferThickness, "12.5");
  EXPECT_EQ(property(AquiferThickness).value(), QVariant(12.5));
  for (const char* const outside : {"0.4", "1000.01", "-20"}) {
    type(AquiferThickness, outside);
    const double taken = property(AquiferThickness).value().toDouble();
    EXPECT_TRUE(1 <= taken && taken <= 1000) << outside << " became " << taken;
  }
}

TEST_F(DesignTreeTest, aValueOfTheProjectBeyondTheRangeIsShownAsItIs) {
  store.setValue(GroundwaterFlowDirection, -90);
  editor.updatePropertyView();
  EXPECT_EQ(text(GroundwaterFlowDirection), QString::fromUtf8("-90 °"));
}

} // namespace TVR::GUI
