#include "desktop/WindowMemory.h"

#include "page/window/PageWindow.h"
#include "project/UserSettings.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

namespace TVR::Desktop::WindowMemory {

namespace {

constexpr char geometryKey[] = "window/geometry";
constexpr char stateKey[] = "window/state";
constexpr char zoomKey[] = "window/zoom";
constexpr char startedKey[] = "window/started";
constexpr char wholePage[] = "page";
constexpr char pageWidth[] = "width";
constexpr int stateVersion = 1; // of the tool bars and docks that there are
constexpr QSize usualSize(1280, 860);

} // namespace

void restore(QMainWindow& window) {
  const QSettings settings = userSettings();
  if (!window.restoreGeometry(settings.value(geometryKey).toByteArray())) {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const QSize room = screen ? screen->availableSize() * 9 / 10 : usualSize;
    window.resize(usualSize.boundedTo(room));
  }
  window.restoreState(settings.value(stateKey).toByteArray(), stateVersion);
}

void keep(const QMainWindow& window) {
  QSettings settings = userSettings();
  settings.setValue(geometryKey, window.saveGeometry());
  settings.setValue(stateKey, window.saveState(stateVersion));
}

void restoreZoom(Page::PageWindow& page) {
  const QString zoom = userSettings().value(zoomKey, wholePage).toString();
  if (zoom == pageWidth)
    page.fitWidth();
  else if (const double scale = zoom.toDouble(); scale > 0)
    page.showScale(scale);
  else
    page.fitSheet();
}

void keepZoom(const Page::PageWindow& page) {
  QSettings settings = userSettings();
  switch (page.fit()) {
  case Page::PageWindow::Fit::Sheet:
    settings.setValue(zoomKey, wholePage);
    break;
  case Page::PageWindow::Fit::Width:
    settings.setValue(zoomKey, pageWidth);
    break;
  case Page::PageWindow::Fit::Centre:
  case Page::PageWindow::Fit::Nothing:
    settings.setValue(zoomKey, page.view().scale);
    break;
  }
}

bool isFirstStart() {
  QSettings settings = userSettings();
  if (settings.value(startedKey).toBool())
    return false;
  settings.setValue(startedKey, true);
  return true;
}

} // namespace TVR::Desktop::WindowMemory
