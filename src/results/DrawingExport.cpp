#include "results/DrawingExport.h"

#include "data/Manager.h"
#include "data/UserMessages.h"
#include "data/WellModel.h"
#include "files/FileReplacement.h"
#include "results/DxfDrawing.h"
#include "results/ExportOptionsDialog.h"

namespace TVR {

using namespace Sketra_lib;

namespace {

constexpr char withdrawalLayer[] = "WELLS_WITHDRAWAL";
constexpr char injectionLayer[] = "WELLS_INJECTION";

} // namespace

void DrawingExport::ask(BrenvikApp::ApplicationInterface* host) const {
  const auto choice =
      askForExport(page_, host, tr("Save as dxf drawing"), tr("DXF drawing, release 12 (*.dxf)"));
  if (choice && !write(choice->fileName, choice->isohypses, choice->isotherms))
    tellUser(Severity::Critical, programTitle, tr("Unable to create:%1").arg(choice->fileName));
}

bool DrawingExport::write(const QString& fileName, bool isohypses, bool isotherms) const {
  DxfDrawing drawing;
  if (!page_.showsPage() || (isohypses && !addLines(drawing, Property::Head)) ||
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
    const QString layer = set == Property::Head ? layerName("ISOHYPSE", line.level, "M")
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
  const WellModel& wells = *page_.store.wellModel();
  drawing.addLayer(withdrawalLayer, Qt::blue);
  drawing.addLayer(injectionLayer, Qt::red);
  for (int well = 0; well < wells.rowCount(); ++well) {
    const auto cell = [&](WellModel::Column column) {
      return wells.index(well, column).data(Qt::EditRole);
    };
    const QPointF place(cell(WellModel::X).toDouble(), cell(WellModel::Y).toDouble());
    drawing.addPoint(cell(WellModel::Rate).toDouble() < 0 ? withdrawalLayer : injectionLayer, place,
                     cell(WellModel::Name).toString());
  }
}

} // namespace TVR
