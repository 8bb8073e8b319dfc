#include "study/work/PartFile.h"

#include "disk/FileReplacement.h"
#include "study/plan/JsonNumbers.h"
#include "study/plan/ResultLayout.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonDocument>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace TVR::Study {

namespace {

constexpr int formatVersion = 1;

QByteArray sumLine(const QByteArray& content) {
  const QByteArray sum = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
  return compactJson({{"sha256", QString::fromLatin1(sum)}}) + '\n';
}

QString encoded(const std::vector<std::uint32_t>& counts) {
  QByteArray bytes(static_cast<int>(counts.size() * sizeof(std::uint32_t)), '\0');
  qToLittleEndian<std::uint32_t>(counts.data(), static_cast<qsizetype>(counts.size()),
                                 bytes.data());
  constexpr int fast = 1; // most counts are 0 anyway
  return QString::fromLatin1(qCompress(bytes, fast).toBase64());
}

std::vector<std::uint32_t> decoded(const QString& text) {
  const QByteArray bytes = qUncompress(QByteArray::fromBase64(text.toLatin1()));
  std::vector<std::uint32_t> counts(static_cast<std::size_t>(bytes.size()) / sizeof(std::uint32_t));
  qFromLittleEndian<std::uint32_t>(bytes.constData(), static_cast<qsizetype>(counts.size()),
                                   counts.data());
  return counts;
}

QByteArray linesOf(const Part& part, const ResultLayout& layout) {
  QByteArray lines = compactJson({{"tevrane_study_part", formatVersion},
                                  {"version", TEVRANE_VERSION},
                                  {"layout", toJson(layout)}}) +
                     '\n';
  for (const Record& record : part.records)
    lines += toLine(record, false) + '\n';
  QJsonArray counts;
  for (const std::vector<std::uint32_t>& map : part.counts.maps)
    counts.append(encoded(map));
  return lines + compactJson({{"counts", counts}}) + '\n';
}

/// The lines of a whole file but for the check sum; none if it is not whole.
std::optional<QByteArray> wholeLines(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly))
    return {};
  const QByteArray content = file.readAll();
  const int end = content.lastIndexOf('\n', -2) + 1;
  const QByteArray lines = content.left(end);
  return end > 0 && content.mid(end) == sumLine(lines) ? std::optional(lines) : std::nullopt;
}

bool isHeadOf(const QByteArray& line, const ResultLayout& layout) {
  const QJsonObject head = QJsonDocument::fromJson(line).object();
  return head["tevrane_study_part"].toInt() == formatVersion &&
         layoutFromJson(head["layout"].toObject()) == layout;
}

std::optional<ExceedanceCounts> countsFrom(const QByteArray& line, const ResultLayout& layout) {
  ExceedanceCounts counts;
  for (const auto& map : QJsonDocument::fromJson(line).object()["counts"].toArray())
    counts.maps.push_back(decoded(map.toString()));
  const auto cells = static_cast<std::size_t>(layout.raster.size());
  const bool fits =
      counts.maps.size() == layout.maps() &&
      std::all_of(counts.maps.begin(), counts.maps.end(),
                  [&](const std::vector<std::uint32_t>& map) { return map.size() == cells; });
  return fits ? std::optional(counts) : std::nullopt;
}

} // namespace

Part foldedPart(std::vector<Record> records, const ResultLayout& layout) {
  Part part;
  part.counts = ExceedanceCounts(layout.maps(), static_cast<std::size_t>(layout.raster.size()));
  for (Record& record : records) {
    part.counts.add(record.maps, static_cast<std::uint32_t>(record.repeats));
    record.maps.clear();
  }
  part.records = std::move(records);
  std::sort(part.records.begin(), part.records.end(),
            [](const Record& one, const Record& other) { return one.run < other.run; });
  return part;
}

void mend(Part& part, const std::vector<Record>& records) {
  for (const Record& record : records) {
    const auto place = std::lower_bound(
        part.records.begin(), part.records.end(), record,
        [](const Record& one, const Record& other) { return one.run < other.run; });
    if (place == part.records.end() || place->run != record.run || !place->hasFailed())
      continue;
    part.counts.add(record.maps, static_cast<std::uint32_t>(record.repeats));
    *place = record;
    place->maps.clear();
  }
}

std::size_t failedRuns(const Part& part) {
  return static_cast<std::size_t>(
      std::count_if(part.records.begin(), part.records.end(),
                    [](const Record& record) { return record.hasFailed(); }));
}

bool writePart(const QString& fileName, const Part& part, const ResultLayout& layout) {
  const QByteArray lines = linesOf(part, layout);
  return replaceFile(fileName, lines + sumLine(lines));
}

bool isWholePart(const QString& fileName) {
  return wholeLines(fileName).has_value();
}

std::optional<Part> readPart(const QString& fileName, const ResultLayout& layout) {
  const auto content = wholeLines(fileName);
  if (!content)
    return {};
  QList<QByteArray> lines = content->split('\n');
  lines.removeLast(); // behind the last end of a line
  if (lines.size() < 2 || !isHeadOf(lines.first(), layout))
    return {};
  qint64 offset = lines.takeFirst().size() + 1;
  const auto counts = countsFrom(lines.takeLast(), layout);
  if (!counts)
    return {};
  Part part;
  part.counts = *counts;
  for (const QByteArray& line : lines) {
    const auto record = recordFromLine(line, layout);
    if (!record)
      return {};
    part.records.push_back(*record);
    part.offsets.push_back(offset);
    offset += line.size() + 1;
  }
  return part;
}

} // namespace TVR::Study
