#include "gui/positions/CellBlock.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace TVR::GUI {

namespace {

bool endsCell(QChar c) {
  return c == '\t' || c == '\n';
}

/// Takes one cell after the other from a text.
class CellScanner {
public:
  explicit CellScanner(const QString& text) : text_(text) {}

  bool isAtEnd() const { return place_ >= text_.size(); }
  /// The cell that begins here, up to what ends it.
  QString takeCell() {
    const int end = endOfQuotes();
    return end < 0 ? takePlain() : takeQuoted(end);
  }
  /// Passes over what ends a cell; whether another cell of the row follows.
  bool takeEnd() { return !isAtEnd() && text_.at(place_++) == '\t'; }

private:
  /// Where the quotes that enclose this cell end; -1 if there are none.
  int endOfQuotes() const {
    if (isAtEnd() || text_.at(place_) != '"')
      return -1;
    for (int i = place_ + 1; i < text_.size(); ++i) {
      if (text_.at(i) != '"')
        continue;
      const bool isLast = i + 1 == text_.size();
      if (isLast || endsCell(text_.at(i + 1)))
        return i;
      if (text_.at(++i) != '"')
        return -1;
    }
    return -1;
  }

  QString takeQuoted(int end) {
    QString cell = text_.mid(place_ + 1, end - place_ - 1);
    place_ = end + 1;
    return cell.replace("\"\"", "\"");
  }

  QString takePlain() {
    const int begin = place_;
    while (!isAtEnd() && !endsCell(text_.at(place_)))
      ++place_;
    return text_.mid(begin, place_ - begin);
  }

  const QString& text_;
  int place_ = 0;
};

QString quotedIfNeeded(QString cell) {
  const bool needsQuotes =
      cell.startsWith('"') || std::any_of(cell.cbegin(), cell.cend(), endsCell);
  return needsQuotes ? '"' + cell.replace('"', "\"\"") + '"' : cell;
}

} // namespace

CellBlock::CellBlock(const QString& text) {
  QString lines = text;
  lines.replace("\r\n", "\n").replace('\r', '\n');
  CellScanner scanner(lines);
  while (!scanner.isAtEnd()) {
    QStringList row{scanner.takeCell()};
    while (scanner.takeEnd())
      row << scanner.takeCell();
    rows_.push_back(row);
  }
  const int width = columns();
  for (QStringList& row : rows_)
    while (row.size() < width)
      row << QString();
}

int CellBlock::columns() const {
  int widest = 0;
  for (const QStringList& row : rows_)
    widest = std::max(widest, row.size());
  return widest;
}

QString CellBlock::text() const {
  QStringList lines;
  for (const QStringList& row : rows_) {
    QStringList cells;
    for (const QString& cell : row)
      cells << quotedIfNeeded(cell);
    lines << cells.join('\t');
  }
  return lines.join('\n');
}

CellNumber readNumber(const QString& cell) {
  static const QRegularExpression number(
      QStringLiteral(R"(^[+-]?(\d+([.,]\d*)?|[.,]\d+)([eE][+-]?\d+)?$)"));
  static const QRegularExpression grouped(
      QStringLiteral("^[+-]?\\d{1,3}([ .,'\u2019\u00a0\u202f]\\d{3})+([.,]\\d+)?$"));
  QString text = cell.trimmed();
  if (text.isEmpty())
    return {CellNumber::Empty, 0, {}};
  text.replace(QChar(0x2212), '-');
  if (!number.match(text).hasMatch())
    return {grouped.match(text).hasMatch() ? CellNumber::Grouped : CellNumber::NoNumber, 0, {}};
  const QChar mark = text.contains(',') ? ',' : text.contains('.') ? '.' : QChar();
  bool isFinite = false;
  const double value = text.replace(',', '.').toDouble(&isFinite);
  return {isFinite ? CellNumber::None : CellNumber::NoNumber, value, mark};
}

QString numberText(double value) {
  return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

} // namespace TVR::GUI
