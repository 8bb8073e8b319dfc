// Writes a picture of every window, dialog and page of the program in a language: screens LANGUAGE
// PROJECT DIRECTORY.

#include "boxes/MessageBoxes.h"
#include "messages/UserMessages.h"
#include "tour/DialogTour.h"
#include "tour/PageTour.h"
#include "tour/WindowTour.h"

#include <QApplication>
#include <QDir>
#include <QWidget>

#include <cstdio>

int main(int argc, char** argv) {
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 4) {
    std::fputs("screens LANGUAGE PROJECT DIRECTORY\n", stderr);
    return 2;
  }
  const QDir directory(arguments[3]);
  TVR::MessageBoxes boxes;
  TVR::setMessenger(&boxes);
  bool isWritten = directory.mkpath(".");
  const TVR::Test::Visit takePicture = [&](const QString& name, QWidget& window) {
    isWritten = window.grab().save(directory.filePath(name + ".png")) && isWritten;
  };
  TVR::Test::tourOfWindows(arguments[1], arguments[2], takePicture);
  TVR::Test::tourOfPages(arguments[1], arguments[2], takePicture);
  TVR::Test::tourOfDialogs(arguments[1], takePicture);
  return isWritten ? 0 : 1;
}
