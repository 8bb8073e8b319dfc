#include "batch/ProgressDisplay.h"

#include "project/Units.h"
#include "terminal/Console.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace TVR::Batch {

namespace {

constexpr int barWidth = 30;

QString clockTime(double seconds) {
  const auto whole = static_cast<int>(std::lround(seconds));
  return QStringLiteral("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QChar('0'));
}

} // namespace

ProgressDisplay::ProgressDisplay(const QString& file, bool onTerminal)
    : file_(file), onTerminal_(onTerminal) {}

ProgressDisplay::~ProgressDisplay() {
  endLine();
}

void ProgressDisplay::starting(const RunStart& start) {
  clock_.start();
  allYears_ = inYears(start.simulatedTime);
  if (!onTerminal_)
    printMessage(
        file_, QStringLiteral("%1 cells, %2 output times").arg(start.cells).arg(start.outputTimes));
}

QString ProgressDisplay::bar(double share, double years, double allYears, double elapsed) {
  const int filled = static_cast<int>(share * barWidth);
  const double remaining = share > 0 ? elapsed * (1 - share) / share : 0;
  return QStringLiteral("[%1%2] %3 %  year %4 of %5  elapsed %6  remaining %7")
      .arg(QString(filled, '#'), QString(barWidth - filled, '-'))
      .arg(static_cast<int>(share * 100), 3)
      .arg(years, 0, 'f', 1)
      .arg(allYears, 0, 'f', 1)
      .arg(clockTime(elapsed), clockTime(remaining));
}

void ProgressDisplay::stepReached(const RunStep& step) {
  const double years = inYears(step.time);
  const double share =
      allYears_ > 0 ? std::clamp(years / allYears_, 0.0, 1.0) : double(step.index + 1) / step.count;
  if (onTerminal_) {
    const QString line = bar(share, years, allYears_, clock_.elapsed() / 1000.0);
    std::fprintf(stderr, "\r%s", line.toUtf8().constData());
    lineIsOpen_ = true;
    std::fflush(stderr);
    return;
  }
  const int tenth = static_cast<int>(share * 10 + 1e-9);
  if (tenth > lastTenth_) {
    lastTenth_ = tenth;
    printMessage(file_, QStringLiteral("%1 %, year %2 of %3")
                            .arg(tenth * 10)
                            .arg(years, 0, 'f', 1)
                            .arg(allYears_, 0, 'f', 1));
  }
}

void ProgressDisplay::finished(const RunSummary&) {
  endLine();
}

void ProgressDisplay::endLine() {
  if (lineIsOpen_)
    std::fputs("\n", stderr);
  lineIsOpen_ = false;
}

} // namespace TVR::Batch
