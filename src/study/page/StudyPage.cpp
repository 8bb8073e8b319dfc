#include "study/page/StudyPage.h"

#include "page/model/Canvas.h"
#include "study/page/Diagrams.h"
#include "study/page/MapPlot.h"
#include "study/page/PageMaker.h"
#include "study/page/StudyFindings.h"
#include "study/page/StudyPageText.h"

namespace TVR::Study {

namespace {

// Places on the sheet [mm]
const QRectF titleBox(7.5, 6, 282, 8);
const QRectF mapBox(7.5, 15, 160, 110.5);
const QRectF legendBox(7.5, 125.5, 160, 28);
const QRectF tableBox(7.5, 155.5, 160, 40.5);
const QRectF temperatureBox(172, 15, 117.5, 56);
const QRectF drawdownBox(172, 73, 117.5, 56);
const QRectF tornadoBox(172, 131, 117.5, 65);
const QRectF meshBox(7.5, 197, 282, 5);
const QRectF programBox(7.5, 202, 282, 4.5);

QString rowHtml(const QStringList& cells) {
  QString html;
  for (const QString& cell : cells)
    html += "<td style=\"padding-right:4px\">" + cell + "</td>";
  return "<tr>" + html + "</tr>";
}

QString tableHtml(const StudyFindings& findings) {
  const auto heading = [](const QString& text) { return "<b>" + text.toHtmlEscaped() + "</b>"; };
  QString rows =
      rowHtml({heading(StudyPageText::tr("Varied")), heading(StudyPageText::tr("Key")),
               heading(StudyPageText::tr("Distribution")), heading(StudyPageText::tr("Unit"))});
  for (const VariedRow& row : findings.varied)
    rows += rowHtml({row.meaning.toHtmlEscaped(), row.key.toHtmlEscaped(),
                     row.distribution.toHtmlEscaped(), row.unit.toHtmlEscaped()});
  return "<table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\">" + rows + "</table>";
}

void addTexts(PageMaker& page, const StudyFindings& findings) {
  page.addText(titleBox,
               QStringLiteral("<b>%1</b> &nbsp; %2")
                   .arg(findings.title.toHtmlEscaped(), findings.runs.toHtmlEscaped()),
               11);
  page.addText(tableBox, tableHtml(findings), 7.5).pen = QPen(Qt::black, 0.15);
  page.addText(meshBox, findings.mesh.toHtmlEscaped(), 7);
  page.addText(
      programBox,
      StudyPageText::tr("Tevrane %1. On the map P10 is what one run of ten reaches; over time P10 "
                        "is what one run of ten stays below.")
          .arg(TEVRANE_VERSION)
          .toHtmlEscaped(),
      6);
}

void addLegend(PageMaker& page) {
  auto& legend = page.add<Page::LegendItem>(legendBox);
  legend.pen = QPen(Qt::black, 0.15);
  legend.spacing = 0.7;
  legend.font = QFont("Arial", 7);
}

} // namespace

void layOutStudyPage(Page::Canvas& canvas, const StudyFindings& findings) {
  PageMaker page;
  const int grid = addMap(page, mapBox, findings);
  addLegend(page);
  addTexts(page, findings);
  addBandPlot(page, temperatureBox, findings.temperatureTitle,
              StudyPageText::tr("Temperature [°C]"), findings.temperature);
  addBandPlot(page, drawdownBox, findings.drawdownTitle, StudyPageText::tr("Drawdown [m]"),
              findings.drawdown);
  addTornado(page, tornadoBox, findings.tornado);
  page.putOn(canvas);
  if (findings.map)
    addProbabilityLines(canvas, grid, findings.map->level);
}

} // namespace TVR::Study
