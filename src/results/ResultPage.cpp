#include "results/ResultPage.h"

#include "design/ParameterId.h"
#include "disk/PictureReading.h"
#include "messages/PluginText.h"
#include "project/ProgramVersion.h"
#include "project/ProjectTarget.h"
#include "results/MapView.h"

#include <QBrush>
#include <QColor>
#include <QDate>
#include <QFile>
#include <QFont>
#include <QLocale>
#include <QPen>
#include <QPixmap>
#include <QXmlStreamReader>

#include <utility>
#include <vector>

namespace TVR {

using namespace Sketra_lib::Property;

namespace {

constexpr char pageTemplate[] = ":/TVR/resources/a4_landscape_template.xml";
constexpr char builtInLogo[] = ":/TVR/images/norvalt_logo.png";
constexpr char decimals[] = "%1f";
constexpr double textMargin = 0.1;

using Properties = std::vector<std::pair<int, QVariant>>;

/// An item of the template and what it is given. A follower is looked for only if the item before
/// it was found.
struct Dress {
  const char* name;
  int PageItems::*id;
  Properties properties;
  int PageItems::*observed = nullptr;
  bool isFollower = false;
};

Properties demandPlot(int months, const Properties& axes) {
  const QVariantMap noGrid{{"QPen", QPen(Qt::NoPen)}, {"WidthMM", 0.0}};
  Properties properties{{MarginTop, 5},
                        {MarginLeft, 15},
                        {XNumberFormat, decimals},
                        {YNumberFormat, decimals},
                        {XAutoScale, false},
                        {XMinimum, 0},
                        {XMaximum, months},
                        {XWholeTicks, 1},
                        {XAutoScale, false},
                        {GridPen, noGrid},
                        {YMinimum, 0},
                        {YMaximum, 10},
                        {YWholeTicks, 1},
                        {YAutoScale, true}};
  properties.insert(properties.end(), axes.begin(), axes.end());
  for (const auto& property :
       Properties{{Visible, true}, {ClipsChildren, true}, {Brush, QBrush(Qt::NoBrush)}})
    properties.push_back(property);
  return properties;
}

QVariantMap mapLegendText() {
  return {{"Text", PluginText::tr("Legend")}, {"Font", QFont("Arial", 11, 75)}};
}

std::vector<Dress> dresses(int months) {
  const QPen noFrame(Qt::NoPen);
  const Properties plainText{{Visible, true}, {TextMargin, textMargin}};
  return {
      {QT_TRANSLATE_NOOP("TVRPlugin", "Program identification"),
       &PageItems::programIdentification,
       {{FramePen, noFrame}, {TextRotation, 0}, {Visible, true}, {TextMargin, textMargin}}},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Project address"), &PageItems::projectAddress, plainText},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Map view"),
       &PageItems::mapView,
       {{UniformScale, true},
        {LegendText, mapLegendText()},
        {MarginLeft, 18},
        {XNumberFormat, decimals},
        {YNumberFormat, decimals},
        {XAutoScale, true},
        {YAutoScale, true},
        {Visible, true},
        {ClipsChildren, true}},
       &PageItems::mapView},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Summary"),
       &PageItems::summary,
       {{Visible, true}, {TextAnchor, 0}, {WrapsText, 1}, {TextMargin, textMargin}},
       &PageItems::projectAddress},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Demand plot (rates)"), &PageItems::ratePlot,
       demandPlot(months, {})},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Rate label"),
       &PageItems::rateLabel,
       {{Visible, true},
        {FramePen, noFrame},
        {Html, PluginText::tr("<font color=\"#6EA5A5\"><b>l/min</b></font>")},
        {TextMargin, textMargin}},
       nullptr,
       true},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Demand plot (temperature)"), &PageItems::temperaturePlot,
       demandPlot(months, {{YAxisOnRight, 1}, {XAxisHidden, 1}})},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Temperature label"),
       &PageItems::temperatureLabel,
       {{Visible, true},
        {FramePen, noFrame},
        {Html, PluginText::tr("<b>K</b>")},
        {TextColour, QColor(255, 170, 0, 255)},
        {TextMargin, textMargin}},
       nullptr,
       true},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Map legend"),
       &PageItems::mapLegend,
       {{Visible, true}, {LegendColumns, 2}, {TextMargin, textMargin}}},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Map scale"), &PageItems::mapScale, plainText},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Date"), &PageItems::date, plainText},
      {QT_TRANSLATE_NOOP("TVRPlugin", "Logo"), &PageItems::logo, {{Visible, true}}},
  };
}

QByteArray templatePage() {
  QFile file(pageTemplate);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

MapRange templateMap() {
  MapRange range;
  QXmlStreamReader page(templatePage());
  while (!page.atEnd()) {
    page.readNext();
    const auto number = [&page](const char* attribute) {
      return page.attributes().value(QLatin1String(attribute)).toDouble();
    };
    if (page.isStartElement() && page.name() == QLatin1String("XAxis")) {
      range.xMinimum = number("Min");
      range.xMaximum = number("Max");
    } else if (page.isStartElement() && page.name() == QLatin1String("YAxis")) {
      range.yMinimum = number("Min");
      range.yMaximum = number("Max");
      break; // the plots of the demand follow that of the map
    }
  }
  return range;
}

ResultPage::ResultPage(const PageAccess& page, DATA::DataObserver& observer)
    : page_(page), observer_(observer) {}

/// The item with the translated name, else the one with the English name; below 1 if there is none.
int ResultPage::find(const char* name) {
  const int id = page_.window->itemByName(PluginText::tr(name), 0);
  return id >= 1 ? id : page_.window->itemByName(QString::fromLatin1(name), 0);
}

void ResultPage::dress(int months) {
  if (!page_.window)
    return;
  const PageLock lock(page_.mutex);
  if (!lock)
    return;
  const PageUpdate update(*page_.window);
  page_.window->setContents(templatePage());
  page_.items = PageItems(); // what stood on the page before is gone
  bool isLeaderThere = true;
  for (const Dress& dress : dresses(months)) {
    if (dress.isFollower && !isLeaderThere)
      continue;
    const int id = find(dress.name);
    isLeaderThere = id >= 1;
    page_.items.*dress.id = id;
    page_.window->setItemProperty(id, Name, PluginText::tr(dress.name));
    for (const auto& [property, value] : dress.properties)
      page_.window->setItemProperty(id, property, value);
    if (dress.observed)
      page_.window->attachObserver(page_.items.*dress.observed, &observer_);
  }
}

void ResultPage::fillTexts(const QString& summary) {
  if (!page_.showsPage())
    return;
  const PageLock lock(page_.mutex, 0);
  if (!lock)
    return;
  const PageUpdate update(*page_.window);
  const auto text = [this](int id) { return page_.project.text(id); };
  const auto write = [this](int item, int property, const QVariant& value) {
    page_.window->setItemProperty(item, property, value);
  };
  const PageItems& items = page_.items;
  write(items.programIdentification, Html,
        QStringLiteral("<span style=\" font-size:6pt; \">Tevrane %2 %3: %1</span>")
            .arg(text(Parameter::UserAddress).replace("<br>", ", "), versionLabel(TEVRANE_VERSION),
                 QString()));
  write(items.projectAddress, Html, text(Parameter::ProjectAddress));
  write(items.summary, Html, summary);
  write(items.date, Html, QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
  const QString logo = text(Parameter::UserLogo);
  write(items.logo, Pixmap,
        logo.isEmpty() ? QPixmap(builtInLogo) : QPixmap::fromImage(readImage(logo)));
  if (items.wells > 0) {
    write(items.wells, CurveStyle, static_cast<int>(SymbolsOnly));
    const QPolygonF wells = page_.project.wells().positions();
    if (page_.window->itemProperty(items.wells, Points).value<QPolygonF>() != wells)
      write(items.wells, Points, wells); // moved, added or taken away since
  }
}

void ResultPage::retranslate(const QString& summary) {
  if (!page_.showsPage())
    return;
  const PageLock lock(page_.mutex, 0);
  if (!lock)
    return;
  const PageUpdate update(*page_.window);
  struct Translation {
    const char* name;
    int PageItems::*id;
    int property = 0; ///< that has a text as well
    QVariant text = {};
  };
  const Translation translations[] = {
      {"Map scale", &PageItems::mapScale, Html,
       mapScaleText(page_.project.count(Parameter::ViewScale))},
      {"Map view", &PageItems::mapView, LegendText, mapLegendText()},
      {"Program identification", &PageItems::programIdentification},
      {"Project address", &PageItems::projectAddress},
      {"Summary", &PageItems::summary, Html, summary},
      {"Demand plot (rates)", &PageItems::ratePlot},
      {"Rate label", &PageItems::rateLabel},
      {"Demand plot (temperature)", &PageItems::temperaturePlot},
      {"Temperature label", &PageItems::temperatureLabel},
      {"Map legend", &PageItems::mapLegend},
      {"Map scale", &PageItems::mapScale},
      {"Date", &PageItems::date},
      {"Logo", &PageItems::logo},
      {"Map image", &PageItems::mapImage},
      {"Wells", &PageItems::wells},
      {"Simulation results", &PageItems::results},
  };
  for (const Translation& translation : translations) {
    const int id = page_.items.*translation.id;
    if (id <= 0)
      continue;
    page_.window->setItemProperty(id, Name, PluginText::tr(translation.name));
    if (translation.property > 0)
      page_.window->setItemProperty(id, translation.property, translation.text);
  }
}

} // namespace TVR
