#include "page/window/PagePrinting.h"

#include "page/model/Canvas.h"
#include "page/painting/PageExport.h"

#include <QPageLayout>
#include <QPrinter>

namespace TVR::Page {

void printPage(const Canvas& canvas, QPrinter& printer) {
  printer.setFullPage(true);
  printer.setPageLayout(sheetLayout(canvas.paperSize()));
  drawSheet(printer, printer.resolution(), canvas);
}

} // namespace TVR::Page
