#include "plugin/ResultCommands.h"

#include "plugin/AppInterface.h"
#include "plugin/ProjectDocument.h"
#include "plugin/ResultGraphic.h"
#include "results/DrawingExport.h"
#include "results/DxfExport.h"
#include "results/ResultImport.h"
#include "results/ShapefileExport.h"
#include "store/UserStep.h"

namespace TVR {

void ResultCommands::exportShapefile() {
  const Data::ProgramWork work(store_); // the dialog's choices are remembered
  ShapefileExport(graphic_.access()).ask(AppInterface::instance());
}

void ResultCommands::exportDxf() {
  DxfExport(graphic_.access()).ask(AppInterface::instance());
}

void ResultCommands::exportDrawing() {
  DrawingExport(graphic_.access()).ask(AppInterface::instance());
}

void ResultCommands::importResults() {
  if (ResultImport(graphic_.access(), AppInterface::instance()).ask())
    document_.pageModified();
}

void ResultCommands::writeShapefile(const QString& file, bool isohypsen, bool isotherms) {
  ShapefileExport(graphic_.access()).write(file, isohypsen, isotherms);
}

void ResultCommands::writeIsoline(int id, int& ishape, SHPHandle hSHP, DBFHandle hDBF,
                                  const QString& parameter, const QString& unit) {
  ShapefileExport(graphic_.access()).writeIsoline(id, ishape, hSHP, hDBF, parameter, unit);
}

} // namespace TVR
