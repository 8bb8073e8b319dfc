#include "boxes/MessageBoxes.h"
#include "desktop/CommandLine.h"
#include "desktop/LogKeeper.h"
#include "desktop/MainWindow.h"
#include "desktop/PluginLoading.h"
#include "desktop/WheelGuard.h"
#include "messages/UserMessages.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <memory>

using namespace TVR;
using namespace TVR::Desktop;

namespace {

enum ExitCode { Fine = 0, NoPlugin = 1, UnknownArgument = 2 };

void name(QApplication& application) {
  application.setOrganizationName("Norvalt");
  application.setApplicationName(programTitle);
  application.setApplicationVersion(TEVRANE_VERSION);
}

int runProgram(const CommandLine& commandLine) {
  MessageBoxes boxes;
  if (MessageBoxes::haveScreen())
    setMessenger(&boxes);
  QString fault;
  const std::unique_ptr<QObject> plugin(
      PluginLoading::load(PluginLoading::usualDirectory(), fault));
  if (!plugin) {
    tellUser(Severity::Critical, programTitle, fault);
    return NoPlugin;
  }
  QApplication::setWindowIcon(QIcon(":/TVR/images/tvr.png"));
  WheelGuard wheelGuard;
  qApp->installEventFilter(&wheelGuard);
  MainWindow window(*plugin);
  window.start(commandLine.language);
  QObject::connect(&window, &MainWindow::closed, qApp, &QCoreApplication::quit,
                   Qt::QueuedConnection);
  window.show();
  if (commandLine.quitsWhenReady) {
    QObject::connect(&window, &MainWindow::ready, &window, QOverload<>::of(&QWidget::repaint));
    QObject::connect(&window, &MainWindow::ready, qApp, &QCoreApplication::quit,
                     Qt::QueuedConnection);
  }
  QMetaObject::invokeMethod(&window, "openFirst", Qt::QueuedConnection,
                            Q_ARG(QStringList, commandLine.files));
  return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  QApplication application(argc, argv);
  name(application);
  const LogKeeper log;
  const CommandLine commandLine = CommandLine::parse(QCoreApplication::arguments());
  if (!commandLine.fault.isEmpty()) {
    std::fprintf(stderr, "%s\n", qPrintable(commandLine.fault));
    return UnknownArgument;
  }
  if (!commandLine.answer.isEmpty()) {
    std::fputs(qPrintable(commandLine.answer), stdout);
    return Fine;
  }
  return runProgram(commandLine);
}
