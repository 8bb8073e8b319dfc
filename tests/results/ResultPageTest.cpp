#include "results/ResultPage.h"

#include "support/ResultPageTest.h"

#include <QBrush>
#include <QCoreApplication>
#include <QDate>
#include <QFont>
#include <QLocale>
#include <QPen>
#include <QPixmap>
#include <QTranslator>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

/// Knows one word of German.
class MapViewTranslator final : public QTranslator {
public:
  MapViewTranslator() { QCoreApplication::installTranslator(this); }
  bool isEmpty() const override { return false; }
  QString translate(const char*, const char* text, const char*, int) const override {
    return qstrcmp(text, "Map view") == 0 ? QStringLiteral("Lageplan") : QString();
  }
};

class ResultPageTemplateTest : public ResultPageTest {
protected:
  ResultPage dressed() { return ResultPage(access(), observer); }

  /// The properties of an item behind its name, in the order in which they were set.
  std::vector<int> dressOf(int item) {
    std::vector<int> properties = page.propertiesSetOn(item);
    EXPECT_FALSE(properties.empty());
    EXPECT_EQ(properties.front(), static_cast<int>(Name));
    properties.erase(properties.begin());
    return properties;
  }

  QString html(int item) { return of(item, Html).toString(); }
};

} // namespace

TEST_F(ResultPageTemplateTest, theTemplateIsPutOnThePage) {
  dressed().dress(12);
  EXPECT_FALSE(page.page.isEmpty());
  EXPECT_EQ(page.page, contentOf(":/TVR/resources/a4_landscape_template.xml"));
  EXPECT_EQ(page.openUpdates, 0);
}

TEST_F(ResultPageTemplateTest, itemsAreFoundByTheirNames) {
  const PageItems expected = items;
  items = PageItems();
  items.wells = 77; // of the page that was there before
  dressed().dress(12);
  EXPECT_EQ(items.fieldIds(), expected.fieldIds());
  EXPECT_EQ(items.rateLabel, expected.rateLabel);
  EXPECT_EQ(items.temperatureLabel, expected.temperatureLabel);
}

TEST_F(ResultPageTemplateTest, textsAreDressed) {
  dressed().dress(12);
  EXPECT_EQ(dressOf(items.programIdentification),
            (std::vector<int>{FramePen, TextRotation, Visible, TextMargin}));
  EXPECT_EQ(of(items.programIdentification, FramePen).value<QPen>().style(), Qt::NoPen);
  EXPECT_EQ(of(items.programIdentification, TextRotation), QVariant(0));
  for (const int item : {items.projectAddress, items.mapScale, items.date}) {
    EXPECT_EQ(dressOf(item), (std::vector<int>{Visible, TextMargin}));
    EXPECT_EQ(of(item, Visible), QVariant(true));
    EXPECT_EQ(of(item, TextMargin), QVariant(0.1));
  }
  EXPECT_EQ(dressOf(items.summary), (std::vector<int>{Visible, TextAnchor, WrapsText, TextMargin}));
  EXPECT_EQ(of(items.summary, TextAnchor), QVariant(0));
  EXPECT_EQ(of(items.summary, WrapsText), QVariant(1));
  EXPECT_EQ(dressOf(items.mapLegend), (std::vector<int>{Visible, LegendColumns, TextMargin}));
  EXPECT_EQ(of(items.mapLegend, LegendColumns), QVariant(2));
  EXPECT_EQ(dressOf(items.logo), std::vector<int>{Visible});
}

TEST_F(ResultPageTemplateTest, theMapIsDressedAndObserved) {
  dressed().dress(12);
  EXPECT_EQ(dressOf(items.mapView),
            (std::vector<int>{UniformScale, LegendText, MarginLeft, XNumberFormat, YNumberFormat,
                              XAutoScale, YAutoScale, Visible, ClipsChildren}));
  for (const int flag : {UniformScale, XAutoScale, YAutoScale, Visible, ClipsChildren})
    EXPECT_EQ(of(items.mapView, flag), QVariant(true)) << flag;
  const QVariantMap legend = of(items.mapView, LegendText).toMap();
  EXPECT_EQ(legend["Text"], QVariant("Legend"));
  EXPECT_EQ(legend["Font"].value<QFont>(), QFont("Arial", 11, 75));
  EXPECT_EQ(of(items.mapView, MarginLeft), QVariant(18));
  EXPECT_EQ(of(items.mapView, XNumberFormat), QVariant("%1f"));
  EXPECT_EQ(of(items.mapView, YNumberFormat), QVariant("%1f"));
  EXPECT_EQ(page.observers.keys(&observer), (QList<int>{items.projectAddress, items.mapView}));
}

TEST_F(ResultPageTemplateTest, theDemandPlotsAreDressedAsOnePlotWithTwoAxes) {
  dressed().dress(24);
  const std::vector<int> common = {MarginTop, MarginLeft, XNumberFormat, YNumberFormat, XAutoScale,
                                   XMinimum,  XMaximum,   XWholeTicks,   XAutoScale,    GridPen,
                                   YMinimum,  YMaximum,   YWholeTicks,   YAutoScale};
  std::vector<int> rates = common;
  rates.insert(rates.end(), {Visible, ClipsChildren, Brush});
  std::vector<int> temperatures = common;
  temperatures.insert(temperatures.end(),
                      {YAxisOnRight, XAxisHidden, Visible, ClipsChildren, Brush});
  EXPECT_EQ(dressOf(items.ratePlot), rates);
  EXPECT_EQ(dressOf(items.temperaturePlot), temperatures);
  for (const int plot : {items.ratePlot, items.temperaturePlot}) {
    EXPECT_EQ(of(plot, MarginTop), QVariant(5));
    EXPECT_EQ(of(plot, MarginLeft), QVariant(15));
    EXPECT_EQ(of(plot, XNumberFormat), QVariant("%1f"));
    EXPECT_EQ(page.valuesOf(plot, XAutoScale), (QVariantList{false, false}));
    EXPECT_EQ(of(plot, XMinimum), QVariant(0));
    EXPECT_EQ(of(plot, XMaximum), QVariant(24));
    EXPECT_EQ(of(plot, XWholeTicks), QVariant(1));
    EXPECT_EQ(of(plot, YMinimum), QVariant(0));
    EXPECT_EQ(of(plot, YMaximum), QVariant(10));
    EXPECT_EQ(of(plot, YWholeTicks), QVariant(1));
    EXPECT_EQ(of(plot, YAutoScale), QVariant(true));
    EXPECT_EQ(of(plot, Brush).value<QBrush>().style(), Qt::NoBrush);
    const QVariantMap grid = of(plot, GridPen).toMap();
    EXPECT_EQ(grid["QPen"].value<QPen>().style(), Qt::NoPen);
    EXPECT_EQ(grid["WidthMM"], QVariant(0.0));
  }
  EXPECT_EQ(of(items.temperaturePlot, YAxisOnRight), QVariant(1));
  EXPECT_EQ(of(items.temperaturePlot, XAxisHidden), QVariant(1));
}

TEST_F(ResultPageTemplateTest, theAxesOfTheDemandPlotsAreLabelled) {
  dressed().dress(12);
  EXPECT_EQ(dressOf(items.rateLabel), (std::vector<int>{Visible, FramePen, Html, TextMargin}));
  EXPECT_EQ(html(items.rateLabel), "<font color=\"#6EA5A5\"><b>l/min</b></font>");
  EXPECT_EQ(dressOf(items.temperatureLabel),
            (std::vector<int>{Visible, FramePen, Html, TextColour, TextMargin}));
  EXPECT_EQ(html(items.temperatureLabel), "<b>K</b>");
  EXPECT_EQ(of(items.temperatureLabel, TextColour).value<QColor>(), QColor(255, 170, 0, 255));
}

TEST_F(ResultPageTemplateTest, aPlotThatIsNotThereIsSkippedWithItsLabel) {
  page.removeItem(items.ratePlot, 0);
  const int label = items.rateLabel;
  dressed().dress(12);
  EXPECT_LT(items.ratePlot, 1);
  EXPECT_EQ(items.rateLabel, 0);
  EXPECT_TRUE(page.propertiesSetOn(label).empty());
  EXPECT_GT(items.temperatureLabel, 0);
}

TEST_F(ResultPageTemplateTest, aGermanPageIsFoundUnderGerman) {
  const int map = items.mapView;
  give(map, Name, "Lageplan");
  const MapViewTranslator german;
  dressed().dress(12);
  EXPECT_EQ(items.mapView, map);
}

TEST_F(ResultPageTemplateTest, anEnglishPageIsFoundUnderGermanAndTakesTheGermanName) {
  const int map = items.mapView;
  const MapViewTranslator german;
  dressed().dress(12);
  EXPECT_EQ(items.mapView, map);
  EXPECT_EQ(of(map, Name), QVariant("Lageplan"));
}

TEST_F(ResultPageTemplateTest, aGermanPageIsNotFoundUnderEnglish) {
  give(items.mapView, Name, "Lageplan");
  dressed().dress(12);
  EXPECT_LT(items.mapView, 1);
}

TEST_F(ResultPageTemplateTest, aLockedPageIsNotDressed) {
  const LockedElsewhere locked(mutex);
  dressed().dress(12);
  EXPECT_TRUE(page.sets.empty());
  EXPECT_TRUE(page.page.isEmpty());
}

// Texts

TEST_F(ResultPageTemplateTest, anAddressOfTwoLinesStandsInOneLineOfTheTitle) {
  store.setValue(UserAddress, "Anna Muster<br>8000 Z%1rich");
  dressed().fillTexts({});
  EXPECT_EQ(html(items.programIdentification),
            "<span style=\" font-size:6pt; \">Tevrane " TEVRANE_VERSION
            " : Anna Muster, 8000 Z%1rich</span>");
}

TEST_F(ResultPageTemplateTest, textsComeFromTheProject) {
  store.setValue(ProjectAddress, "Street 1<br>Town");
  items.wells = page.addItem("Wells", items.mapView);
  dressed().fillTexts("<table></table>");
  EXPECT_EQ(html(items.projectAddress), "Street 1<br>Town");
  EXPECT_EQ(html(items.summary), "<table></table>");
  EXPECT_EQ(html(items.date),
            QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
  EXPECT_EQ(of(items.wells, CurveStyle), QVariant(4));
}

TEST_F(ResultPageTemplateTest, textsAreWrittenInTheirOrder) {
  items.wells = page.addItem("Wells", items.mapView);
  dressed().fillTexts({});
  std::vector<int> written;
  for (const RecordingPage::Set& set : page.sets)
    written.push_back(set.item);
  EXPECT_EQ(written, (std::vector<int>{items.programIdentification, items.projectAddress,
                                       items.summary, items.date, items.logo, items.wells}));
}

TEST_F(ResultPageTemplateTest, withoutALogoTheBuiltInOneIsShown) {
  store.setValue(UserLogo, "");
  dressed().fillTexts({});
  const QPixmap builtIn(":/TVR/images/norvalt_logo.png");
  EXPECT_FALSE(builtIn.isNull());
  EXPECT_EQ(of(items.logo, Pixmap).value<QPixmap>().toImage(), builtIn.toImage());
}

TEST_F(ResultPageTemplateTest, theUsersLogoIsShown) {
  QPixmap logo(5, 4);
  logo.fill(Qt::red);
  ASSERT_TRUE(logo.save(path("logo.png")));
  store.setValue(UserLogo, path("logo.png"));
  dressed().fillTexts({});
  EXPECT_EQ(of(items.logo, Pixmap).value<QPixmap>().size(), QSize(5, 4));
}

TEST_F(ResultPageTemplateTest, textsOfALockedPageStay) {
  const LockedElsewhere locked(mutex);
  dressed().fillTexts("summary");
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(ResultPageTemplateTest, aWindowOfAnotherTypeIsNotFilled) {
  page.type = "TextWindow";
  dressed().fillTexts("summary");
  EXPECT_TRUE(page.sets.empty());
}
