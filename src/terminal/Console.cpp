#include "terminal/Console.h"

#include "messages/PrintableText.h"

#include <QCoreApplication>
#include <QStringList>

#include <unistd.h>

#include <cstdio>

namespace TVR {

namespace {

bool isVerbose = false;

void writeLine(std::FILE* stream, const QString& line) {
  std::fputs((printable(line) + '\n').toUtf8().constData(), stream);
  std::fflush(stream);
}

void handleMessage(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if ((type == QtDebugMsg || type == QtInfoMsg) && !isVerbose)
    return;
  if (text.startsWith("QStandardPaths: XDG_RUNTIME_DIR")) // nothing is kept there
    return;
  writeLine(stderr, text.simplified());
}

} // namespace

void printLine(const QString& line) {
  writeLine(stdout, line);
}

void printText(const QString& text) {
  for (const QString& line : text.split('\n'))
    printLine(line);
}

void printMessage(const QString& file, const QString& text) {
  const QString subject = file.isEmpty() ? QString() : file + ": ";
  writeLine(stderr,
            QStringLiteral("%1: ").arg(QCoreApplication::applicationName()) + subject + text);
}

bool hasPrintedAll() {
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

bool isTerminal() {
  return isatty(STDERR_FILENO) != 0;
}

void routeMessages(Talk talk) {
  isVerbose = talk == Talk::Verbose;
  qInstallMessageHandler(handleMessage);
}

} // namespace TVR
