#include "study/work/Results.h"

#include "study/work/Journal.h"
#include "study/work/PartFile.h"

#include <QFile>

#include <algorithm>

namespace TVR::Study {

Results::Results(const StudyFolder& folder, const Plan& plan, const ResultLayout& layout)
    : folder_(folder), plan_(plan), layout_(layout),
      counts_(layout.maps(), static_cast<std::size_t>(layout.raster.size())) {
  QHash<QByteArray, int> open; // repeats of the runs that stand in no part, by name
  takeParts(open);
  takeJournals(open);
  std::sort(places_.begin(), places_.end(),
            [](const Place& one, const Place& other) { return one.run < other.run; });
}

void Results::takeParts(QHash<QByteArray, int>& open) {
  const QByteArray layoutId = idOf(layout_);
  for (std::size_t part = 0; part < plan_.parts(); ++part) {
    const QString file = folder_.part(partName(plan_, part, layoutId));
    if (const auto found = readPart(file, layout_)) {
      for (std::size_t i = 0; i < found->records.size(); ++i)
        take({found->records[i].run, found->records[i].repeats, file, found->offsets[i]},
             found->records[i]);
      counts_.add(found->counts);
      continue;
    }
    for (std::size_t i = plan_.firstOf(part); i < plan_.endOf(part); ++i)
      open.insert(plan_.runs[i].name, plan_.runs[i].repeats);
  }
}

void Results::takeJournals(const QHash<QByteArray, int>& allOpen) {
  QHash<QByteArray, int> open = allOpen;
  for (const QString& file : folder_.journals(idOf(layout_))) {
    qint64 offset = 0;
    for (const QByteArray& line : Journal::linesOf(file)) {
      const auto record = recordFromLine(line, layout_);
      if (const int repeats = record ? open.take(record->run) : 0; repeats > 0) {
        take({record->run, repeats, file, offset}, *record);
        counts_.add(record->maps, static_cast<std::uint32_t>(repeats));
      }
      offset += line.size() + 1;
    }
  }
}

void Results::take(const Place& place, const Record& record) {
  places_.push_back(place);
  failed_ += record.hasFailed() ? 1 : 0;
}

void Results::eachRecord(const std::function<void(const Record&)>& visit) const {
  QFile file;
  for (const Place& place : places_) {
    if (file.fileName() != place.file) {
      file.close();
      file.setFileName(place.file);
      if (!file.open(QIODevice::ReadOnly))
        continue;
    }
    file.seek(place.offset);
    if (auto record = recordFromLine(file.readLine().trimmed(), layout_)) {
      record->repeats = place.repeats;
      record->maps.clear();
      visit(*record);
    }
  }
}

} // namespace TVR::Study
