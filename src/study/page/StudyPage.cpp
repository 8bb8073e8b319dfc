#include "study/page/StudyPage.h"

#include "page/model/Canvas.h"
#include "study/page/Diagrams.h"
#include "study/page/MapPlot.h"
#include "study/page/PageMaker.h"
#include "study/page/StudyFindings.h"

namespace TVR::Study {

namespace {

// Places on the sheet [mm]
const QRectF titleBox(7.5, 6, 282, 8);
const QRectF mapBox(7.5, 15, 160, 112);
const QRectF legendBox(7.5, 127, 160, 27);
const QRectF tableBox(7.5, 156, 160, 40);
const QRectF temperatureBox(172, 15, 117.5, 56);
const QRectF drawdownBox(172, 73, 117.5, 56);
const QRectF tornadoBox(172, 131, 117.5, 65);
const QRectF meshBox(7.5, 197, 282, 5);
const QRectF programBox(7.5, 202, 282, 4.5);

QString tableHtml(const StudyFindings& findings) {
  QString html = "<table width=\"100%\" cellpadding=\"1\"><tr><td><b>Key</b></td>"
                 "<td><b>Distribution</b></td><td><b>Unit</b></td></tr>";
  for (const VariedRow& row : findings.varied)
    html += QStringLiteral("<tr><td>%1</td><td>%2</td><td>%3</td></tr>")
                .arg(row.key.toHtmlEscaped(), row.distribution.toHtmlEscaped(),
                     row.unit.toHtmlEscaped());
  return html + "</table>";
}

void addTexts(PageMaker& page, const StudyFindings& findings) {
  page.addText(titleBox,
               QStringLiteral("<b>%1</b> &nbsp; %2")
                   .arg(findings.title.toHtmlEscaped(), findings.runs.toHtmlEscaped()),
               11);
  page.addText(tableBox, tableHtml(findings), 8).pen = QPen(Qt::black, 0.15);
  page.addText(meshBox, findings.base.mesh.toHtmlEscaped(), 7);
  page.addText(
      programBox,
      QStringLiteral("Tevrane %1. On the map P10 is what one run of ten reaches; over time "
                     "P10 is what one run of ten stays below.")
          .arg(TEVRANE_VERSION),
      6);
}

void addLegend(PageMaker& page) {
  auto& legend = page.add<Page::LegendItem>(legendBox);
  legend.pen = QPen(Qt::black, 0.15);
  legend.font = QFont("Arial", 8);
}

} // namespace

void layOutStudyPage(Page::Canvas& canvas, const StudyFindings& findings) {
  PageMaker page;
  const int grid = addMap(page, mapBox, findings);
  addLegend(page);
  addTexts(page, findings);
  if (findings.temperature)
    addBandPlot(page, temperatureBox, findings.temperatureTitle, QStringLiteral("Temperature"),
                *findings.temperature);
  if (findings.drawdown)
    addBandPlot(
        page, drawdownBox,
        QStringLiteral("Drawdown at %1, the greatest of the wells").arg(findings.drawdown->well),
        QStringLiteral("Drawdown"), *findings.drawdown);
  if (findings.tornado)
    addTornado(page, tornadoBox, *findings.tornado);
  page.putOn(canvas);
  if (findings.map)
    addProbabilityLines(canvas, grid, findings.map->level);
}

} // namespace TVR::Study
