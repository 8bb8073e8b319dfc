#include "results/DxfExport.h"

#include "disk/FileReplacement.h"
#include "results/ExportOptionsDialog.h"

#include <QTextStream>

namespace TVR {

using namespace Sketra_lib;

namespace DxfText {

void writeBegin(QTextStream& text) {
  text << "0\nSECTION\n2\nENTITIES\n0\n";
}

void writeEnd(QTextStream& text) {
  text << "0\nENDSEC\n0\nEOF\n";
}

// Required oddity: group codes in a form of its own, in which each line ends a section.
void writeIsoline(QTextStream& text, const Isoline& line, LineKind kind) {
  const bool plain = kind == LineKind::Drawdown && line.breaks.empty();
  for (const IsolinePiece& piece : piecesOf(line, LineRest::IsLeftOut)) {
    text << (plain ? "LINE" : "AcDbPolyline") << "\n90\n" << piece.count << "\n70\n0\n43\n0\n";
    for (int i = piece.first; i < piece.first + piece.count; ++i)
      text << "10\n" << line.points[i].x() << "\n20\n" << line.points[i].y() << '\n';
    text << "ENDSEC\n0\n";
  }
}

} // namespace DxfText

void DxfExport::ask(BrenvikApp::ApplicationInterface* host) const {
  const auto choice =
      askForExport(page_, host, tr("Save as dxf file"), tr("AutoCAD dxf-file (*.dxf)"));
  if (choice)
    write(choice->fileName, choice->isohypses, choice->isotherms);
}

bool DxfExport::write(const QString& fileName, bool isohypses, bool isotherms) const {
  QByteArray bytes;
  QTextStream text(&bytes);
  DxfText::writeBegin(text);
  if (isohypses)
    writeLines(text, Property::Drawdowns, DxfText::LineKind::Drawdown);
  if (isotherms)
    writeLines(text, Property::Temperature, DxfText::LineKind::Temperature);
  DxfText::writeEnd(text);
  text.flush();
  return replaceFile(fileName, bytes);
}

void DxfExport::writeLines(QTextStream& text, Property::DataSet set, DxfText::LineKind kind) const {
  if (page_.items.results < 1 || !selectDataSet(page_, set))
    return;
  for (const int id : isolineIds(page_))
    DxfText::writeIsoline(text, readIsoline(*page_.window, id), kind);
}

} // namespace TVR
