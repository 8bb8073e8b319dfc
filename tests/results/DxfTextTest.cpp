#include "results/DxfExport.h"

#include <QTextStream>

#include <gtest/gtest.h>

namespace TVR {
namespace {

using DxfText::LineKind;

QString textOf(const Isoline& line, LineKind kind) {
  QString result;
  QTextStream text(&result);
  DxfText::writeIsoline(text, line, kind);
  return result;
}

Isoline line(int count, const QVector<int>& breaks = {}) {
  QPolygonF points;
  for (int i = 0; i < count; ++i)
    points << QPointF(i, 100 + i);
  return {points, breaks, 1.0};
}

QString coordinates(int first, int end) {
  QString text;
  for (int i = first; i < end; ++i)
    text += QStringLiteral("10\n%1\n20\n%2\n").arg(i).arg(100 + i);
  return text;
}

TEST(DxfText, hasASectionOfEntitiesOnly) {
  QString result;
  QTextStream text(&result);
  DxfText::writeBegin(text);
  DxfText::writeEnd(text);
  EXPECT_EQ(result.toStdString(), "0\nSECTION\n2\nENTITIES\n0\n0\nENDSEC\n0\nEOF\n");
}

TEST(DxfText, aDrawdownLineInOnePieceIsALine) {
  EXPECT_EQ(textOf(line(3), LineKind::Drawdown).toStdString(),
            "LINE\n90\n3\n70\n0\n43\n0\n10\n0\n20\n100\n10\n1\n20\n101\n10\n2\n20\n102\n"
            "ENDSEC\n0\n");
}

TEST(DxfText, aTemperatureLineInOnePieceIsAPolyline) {
  EXPECT_EQ(textOf(line(3), LineKind::Temperature).toStdString(),
            "AcDbPolyline\n90\n3\n70\n0\n43\n0\n10\n0\n20\n100\n10\n1\n20\n101\n10\n2\n20\n102\n"
            "ENDSEC\n0\n");
}

TEST(DxfText, eachBreakEndsAPolylineAndTheRestIsLeftOut) {
  const QString expected = "AcDbPolyline\n90\n5\n70\n0\n43\n0\n" + coordinates(0, 5) +
                           "ENDSEC\n0\nAcDbPolyline\n90\n4\n70\n0\n43\n0\n" + coordinates(5, 9) +
                           "ENDSEC\n0\n";
  EXPECT_EQ(textOf(line(12, {5, 9}), LineKind::Drawdown).toStdString(), expected.toStdString());
  EXPECT_EQ(textOf(line(12, {5, 9}), LineKind::Temperature).toStdString(), expected.toStdString());
}

TEST(DxfText, aLineOfTwoPointsIsSkipped) {
  EXPECT_EQ(textOf(line(2), LineKind::Drawdown), "");
  EXPECT_EQ(textOf(line(2, {1, 2}), LineKind::Temperature), "");
}

TEST(DxfText, numbersHaveSixSignificantDigits) {
  const Isoline far{{{681234.56, 1234567.8}, {0.1234567, -2}, {681234.4, 1e-7}}, {}, 1.0};
  EXPECT_EQ(textOf(far, LineKind::Drawdown).toStdString(),
            "LINE\n90\n3\n70\n0\n43\n0\n10\n681235\n20\n1.23457e+06\n10\n0.123457\n20\n-2\n"
            "10\n681234\n20\n1e-07\nENDSEC\n0\n");
}

} // namespace
} // namespace TVR
