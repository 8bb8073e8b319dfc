// The committed report is that of the code: its quick form, made anew, stands in it line by line.

#include "verification/Report.h"

#include "verification/WholeReport.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace Verification {

namespace {

/// How far numbers may lie apart: what decides about an error is the mesh, or the integrator, whose
/// choice of steps is free.
enum class Decides { Mesh, Integrator };

QString textOf(const QString& fileName) {
  QFile file(fileName);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fileName.toStdString();
  return QString::fromUtf8(file.readAll());
}

const QRegularExpression numeral("-?\\d+(\\.\\d+)?(e[-+]?\\d+)?");

bool areAlike(double one, double other, Decides decides) {
  const double larger = std::max(std::abs(one), std::abs(other));
  if (decides == Decides::Mesh)
    return std::abs(one - other) <= 0.02 * larger;
  constexpr double rounding = 1e-8;
  return larger < rounding || larger <= 10.0 * std::min(std::abs(one), std::abs(other));
}

bool isTableRow(const QString& line) {
  return line.startsWith('|');
}

/// The same text around numbers that are alike; of rows also the same first entry.
bool areAlike(const QString& one, const QString& other, Decides decides) {
  if (QString(one).replace(numeral, "#") != QString(other).replace(numeral, "#"))
    return false;
  if (isTableRow(one) && one.section('|', 1, 1) != other.section('|', 1, 1))
    return false;
  auto mine = numeral.globalMatch(one);
  auto theirs = numeral.globalMatch(other);
  while (mine.hasNext())
    if (!areAlike(mine.next().captured().toDouble(), theirs.next().captured().toDouble(), decides))
      return false;
  return true;
}

/// Lines of the quick form that do not stand in the committed form, in which only rows of tables
/// may lie between them.
QStringList linesNotIn(const QStringList& committed, const QStringList& quick) {
  QStringList missing;
  int place = 0;
  Decides decides = Decides::Mesh;
  for (int i = 0; i < quick.size(); ++i) {
    const bool isHeader = isTableRow(quick[i]) && !isTableRow(quick[i - 1]);
    if (isHeader)
      decides = quick[i].contains("tolerance") ? Decides::Integrator : Decides::Mesh;
    int found = place;
    while (found < committed.size() && isTableRow(committed[found]) &&
           !areAlike(quick[i], committed[found], decides))
      ++found;
    if (found < committed.size() && areAlike(quick[i], committed[found], decides))
      place = found + 1;
    else
      missing.append(quick[i]);
  }
  return missing;
}

} // namespace

TEST(VerificationReport, theCommittedOneIsThatOfTheCode) {
  const QTemporaryDir folder;
  Report report(folder.path().toStdString(), Report::Form::Quick);
  writeCases(report, {});
  const QStringList quick = textOf(folder.filePath("verification.md")).split('\n');
  const QStringList committed = textOf(TEVRANE_DOCS_DIR "/verification.md").split('\n');
  ASSERT_GT(quick.size(), 200);
  EXPECT_EQ(linesNotIn(committed, quick).join('\n').toStdString(), "");

  const QDir figures(folder.filePath("verification"));
  for (const QString& name : figures.entryList(QDir::Files))
    EXPECT_TRUE(areAlike(textOf(figures.filePath(name)),
                         textOf(TEVRANE_DOCS_DIR "/verification/" + name), Decides::Mesh))
        << name.toStdString();
}

TEST(VerificationReport, aRowOrATextThatIsNotThatOfTheCodeIsFound) {
  const QStringList committed{"Text of 3 cells.",
                              "",
                              "| cells | error |",
                              "| --- | --- |",
                              "| 10 | 0.5 |",
                              "| 20 | 0.25 |",
                              "",
                              "End."};
  QStringList quick = committed;
  quick.removeAt(5);
  EXPECT_EQ(linesNotIn(committed, quick), QStringList());
  quick[4] = "| 10 | 0.53 |";
  EXPECT_EQ(linesNotIn(committed, quick), QStringList("| 10 | 0.53 |"));
  quick = committed;
  quick[0] = "Text of 4 cells.";
  EXPECT_TRUE(linesNotIn(committed, quick).contains("Text of 4 cells."));
}

TEST(VerificationReport, whereTheToleranceDecidesTheOrderOfMagnitudeCounts) {
  const QStringList committed{"", "| tolerance | error |", "| --- | --- |", "| 1e-06 | 2e-05 |",
                              ""};
  QStringList quick = committed;
  quick[3] = "| 1e-06 | 1.1e-05 |";
  EXPECT_EQ(linesNotIn(committed, quick), QStringList());
  quick[3] = "| 1e-06 | 3e-04 |";
  EXPECT_NE(linesNotIn(committed, quick), QStringList());
}

} // namespace Verification
