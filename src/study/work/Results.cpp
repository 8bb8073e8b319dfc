#include "study/work/Results.h"

#include "study/work/Journal.h"
#include "study/work/PartFile.h"

#include <QFile>

#include <algorithm>

namespace TVR::Study {

Results::Results(const StudyFolder& folder, const Plan& plan, const ResultLayout& layout)
    : folder_(folder), plan_(plan), layout_(layout),
      counts_(layout.maps(), static_cast<std::size_t>(layout.raster.size())) {
  OpenRuns open;
  takeParts(open);
  takeJournals(open);
  takeFailures(open);
  std::sort(places_.begin(), places_.end(),
            [](const Place& one, const Place& other) { return one.run < other.run; });
}

void Results::takeParts(OpenRuns& open) {
  const QByteArray layoutId = idOf(layout_);
  for (std::size_t part = 0; part < plan_.parts(); ++part) {
    const QString file = folder_.part(partName(plan_, part, layoutId));
    const auto found = readPart(file, layout_);
    for (std::size_t i = 0; found && i < found->records.size(); ++i) {
      const Record& record = found->records[i];
      const Place place{record.run, record.repeats, file, found->offsets[i]};
      if (record.hasFailed())
        open.insert(record.run, {record.repeats, place, {}});
      else
        places_.push_back(place);
    }
    if (found)
      counts_.add(found->counts);
    else
      for (std::size_t i = plan_.firstOf(part); i < plan_.endOf(part); ++i)
        open.insert(plan_.runs[i].name, {plan_.runs[i].repeats, {}, {}});
  }
}

void Results::takeJournals(OpenRuns& open) {
  for (const QString& file : folder_.journals(idOf(layout_))) {
    qint64 offset = 0;
    for (const QByteArray& line : Journal::linesOf(file)) {
      const auto record = recordFromLine(line, layout_);
      if (const auto run = record ? open.find(record->run) : open.end(); run != open.end()) {
        const Place place{record->run, run->repeats, file, offset};
        if (record->hasFailed()) {
          run->failedInJournal = place;
        } else {
          places_.push_back(place);
          counts_.add(record->maps, static_cast<std::uint32_t>(run->repeats));
          open.erase(run);
        }
      }
      offset += line.size() + 1;
    }
  }
}

void Results::takeFailures(const OpenRuns& open) {
  for (const OpenRun& run : open)
    if (const auto& place = run.failedInPart ? run.failedInPart : run.failedInJournal) {
      places_.push_back(*place);
      ++failed_;
    }
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
