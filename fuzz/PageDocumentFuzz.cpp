#include "page/Canvas.h"

#include <QGuiApplication>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("XDG_CONFIG_HOME", QByteArray("/nonexistent/tevrane-fuzz"));
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  static QGuiApplication application(*argc, *argv);
  return 0;
}

/// A page that was read can be written and read again, and is then written alike.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  TVR::Page::Canvas canvas;
  const auto* text = reinterpret_cast<const char*>(bytes);
  if (!canvas.load(QByteArray(text, static_cast<int>(size))))
    return 0;
  const QByteArray saved = canvas.save();
  if (!canvas.load(saved) || canvas.save() != saved)
    std::abort();
  return 0;
}
