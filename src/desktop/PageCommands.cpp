#include "desktop/PageCommands.h"

#include "messages/UserMessages.h"
#include "page/painting/PageExport.h"
#include "page/window/PagePrinting.h"
#include "page/window/PageWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace TVR::Desktop {

namespace {

/// Says by the cursor that something takes its time.
class BusyCursor {
public:
  BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~BusyCursor() { QApplication::restoreOverrideCursor(); }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
};

} // namespace

PageCommands::PageCommands(QWidget& parent, Surroundings surroundings)
    : QObject(&parent), parent_(parent), surroundings_(std::move(surroundings)) {}

PageCommands::~PageCommands() = default;

void PageCommands::exportAs(const QString& ending) {
  if (!surroundings_.page())
    return;
  const QString filter = tr("%1 file (*.%2)").arg(ending.toUpper(), ending);
  QString file = QFileDialog::getSaveFileName(&parent_, tr("Export page"),
                                              surroundings_.proposedName() + '.' + ending, filter);
  // The page may have been closed while the dialog was open.
  const Page::PageWindow* const page = surroundings_.page();
  if (file.isEmpty() || !page)
    return;
  if (QFileInfo(file).suffix().toLower() != ending)
    file += '.' + ending;
  surroundings_.choseFile(file);
  bool isWritten = false;
  {
    const BusyCursor busy;
    isWritten = Page::exportPage(page->canvas(), file);
  }
  if (isWritten)
    surroundings_.report(tr("Page written to %1").arg(QDir::toNativeSeparators(file)));
  else
    tellUser(Severity::Critical, programTitle,
             tr("The page cannot be written to %1").arg(QDir::toNativeSeparators(file)));
}

void PageCommands::copyAsPicture() {
  const Page::PageWindow* const page = surroundings_.page();
  if (!page)
    return;
  const BusyCursor busy;
  const QImage picture = Page::pictureOf(page->canvas());
  if (picture.isNull())
    return;
  QApplication::clipboard()->setImage(picture);
  surroundings_.report(tr("Page copied to the clipboard"));
}

/// The printer with the paper that the user has chosen, or else that of the sheet.
QPrinter& PageCommands::printer(const Page::PageWindow& page) {
  if (!printer_) {
    const BusyCursor busy;
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setCreator(programTitle);
  }
  printer_->setFullPage(true);
  printer_->setDocName(QFileInfo(surroundings_.proposedName()).fileName());
  if (!hasOwnPaper_)
    printer_->setPageLayout(Page::sheetLayout(page.canvas().paperSize()));
  return *printer_;
}

/// Notes whether a dialog has left the printer another paper than the sheet, or margins.
void PageCommands::keepPaper(const Page::PageWindow& page) {
  const QPageLayout sheet = Page::sheetLayout(page.canvas().paperSize());
  const QPageLayout chosen = printer_->pageLayout();
  hasOwnPaper_ = !chosen.pageSize().isEquivalentTo(sheet.pageSize()) ||
                 chosen.orientation() != sheet.orientation() || chosen.margins() != sheet.margins();
}

void PageCommands::setUpPage() {
  if (const Page::PageWindow* const page = surroundings_.page()) {
    QPageSetupDialog dialog(&printer(*page), &parent_);
    if (dialog.exec() == QDialog::Accepted && surroundings_.page() == page)
      keepPaper(*page);
  }
}

void PageCommands::preview() {
  if (const Page::PageWindow* const page = surroundings_.page()) {
    QPrintPreviewDialog dialog(&printer(*page), &parent_);
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
            [this, page](QPrinter*) { printPage(*page); });
    dialog.exec();
    if (surroundings_.page() == page)
      keepPaper(*page);
  }
}

void PageCommands::print() {
  if (const Page::PageWindow* const page = surroundings_.page()) {
    QPrintDialog dialog(&printer(*page), &parent_);
    if (dialog.exec() == QDialog::Accepted && surroundings_.page() == page) {
      keepPaper(*page);
      printPage(*page);
    }
  }
}

void PageCommands::printPage(const Page::PageWindow& page) {
  const BusyCursor busy;
  Page::printPage(page.canvas(), *printer_);
}

} // namespace TVR::Desktop
