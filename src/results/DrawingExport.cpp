#include "results/DrawingExport.h"

#include "design/ParameterId.h"
#include "disk/FileReplacement.h"
#include "messages/UserMessages.h"
#include "project/ProjectTarget.h"
#include "results/DxfDrawing.h"
#include "results/ExportOptionsDialog.h"
#include "results/WellMarks.h"

namespace TVR {

using namespace Sketra_lib;

namespace {

struct Layer {
  QString name;
  QColor colour;
};

Layer layerOf(WellUse use) {
  switch (use) {
  case WellUse::Withdrawal:
    return {"WELLS_WITHDRAWAL", Qt::blue};
  case WellUse::Injection:
    return {"WELLS_INJECTION", Qt::red};
  case WellUse::Alternating:
    return {"WELLS_ALTERNATING", Qt::magenta};
  default:
    return {"WELLS_IDLE", Qt::black};
  }
}

} // namespace

void DrawingExport::ask(BrenvikApp::ApplicationInterface* host) const {
  const auto choice =
      askForExport(page_, host, tr("Save as dxf drawing"), tr("DXF drawing, release 12 (*.dxf)"));
  if (choice && !write(choice->fileName, choice->isohypses, choice->isotherms))
    tellUser(Severity::Critical, programTitle, tr("Unable to create:%1").arg(choice->fileName));
}

bool DrawingExport::write(const QString& fileName, bool isohypses, bool isotherms) const {
  DxfDrawing drawing;
  if (!page_.showsPage() || (isohypses && !addLines(drawing, Property::Drawdowns)) ||
      (isotherms && !addLines(drawing, Property::Temperature)))
    return false;
  addWells(drawing);
  return replaceFile(fileName, drawing.toDxf());
}

bool DrawingExport::addLines(DxfDrawing& drawing, Property::DataSet set) const {
  if (page_.items.results < 1)
    return true;
  if (!selectDataSet(page_, set))
    return false;
  for (const int id : isolineIds(page_)) {
    const Isoline line = readIsoline(*page_.window, id);
    const QString layer = set == Property::Drawdowns ? layerName("ISOHYPSE", line.level, "M")
                                                     : layerName("ISOTHERM", line.level, "K");
    const auto colour = page_.window->itemProperty(id, Property::LineColour).value<QColor>();
    for (const IsolinePiece& piece : piecesOf(line, LineRest::IsAPiece)) {
      drawing.addLayer(layer, colour);
      drawing.addLine(layer, line.points.mid(piece.first, piece.count));
    }
  }
  return true;
}

void DrawingExport::addWells(DxfDrawing& drawing) const {
  const WellReader wells = page_.project.wells();
  const int periods = page_.project.count(Parameter::NumberOfDemandsPerYear);
  for (int well = 0; well < wells.count(); ++well) {
    const Layer layer = layerOf(wellUse(wells, well, periods));
    drawing.addLayer(layer.name, layer.colour);
    drawing.addPoint(layer.name, wells.place(well), wells.name(well));
  }
}

} // namespace TVR
