#include "page/document/PageDocument.h"
#include "page/model/Canvas.h"
#include "page/painting/PagePainter.h"
#include "tests/support/NoSettings.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cstdint>
#include <cstdlib>

/// The off-screen platform leaves its screen behind when the application ends, and the fonts their
/// tables; all else is looked through.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\nleak:libqoffscreen\nleak:QScreen::QScreen\n";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  keepNoSettings();
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  // Never ended: what it and the caches of the page hold of each other has no order of ending.
  static const auto* const application = new QApplication(*argc, *argv);
  Q_UNUSED(application)
  return 0;
}

/// A page that was read can be drawn, and written and read again, and is then written alike.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  TVR::Page::Canvas canvas;
  const auto* text = reinterpret_cast<const char*>(bytes);
  if (!readPage(canvas, QByteArray(text, static_cast<int>(size))))
    return 0;
  QImage image(297, 210, QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&image);
  TVR::Page::paintPage(painter, canvas);
  painter.end();
  const QByteArray saved = writePage(canvas);
  if (!readPage(canvas, saved) || writePage(canvas) != saved)
    std::abort();
  return 0;
}
