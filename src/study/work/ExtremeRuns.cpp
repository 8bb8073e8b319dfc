#include "study/work/ExtremeRuns.h"

#include "store/Manager.h"
#include "study/work/PlannedSite.h"
#include "study/work/RunInput.h"
#include "study/work/RunWatch.h"

#include <QFileInfo>

#include <algorithm>
#include <exception>

namespace TVR::Study {

namespace {

class ExtremeCheck {
public:
  ExtremeCheck(const StudyFile& study, const Plan& plan, const ResultLayout& layout,
               Findings& findings)
      : study_(study), plan_(plan), layout_(layout), findings_(findings) {}

  void check(std::size_t place) {
    const StudyKey& key = plan_.keys[place];
    RunInput input(study_.base, {key});
    std::vector<double> cells;
    QStringList faults;
    for (const double value : extremesOf(place)) {
      if (const QString fault = faultWith(input, value); !fault.isEmpty())
        faults << QStringLiteral("%1: with %2 %3").arg(key.name).arg(value).arg(fault);
      if (key.cell)
        cells.push_back(
            cellOf(*Data::Manager::instance(), key.cell->table, key.cell->row, key.cell->column)
                .toDouble());
    }
    if (const QString fault = cellFault(key, cells); !fault.isEmpty())
      findings_.errors << placeOf(key) + fault;
    else
      findings_.warnings << faults;
  }

private:
  /// The least and the greatest value of a key in the sample, once if they are one.
  std::vector<double> extremesOf(std::size_t place) const {
    const auto [least, most] =
        std::minmax_element(plan_.runs.begin(), plan_.runs.end(),
                            [place](const PlannedRun& one, const PlannedRun& other) {
                              return one.values[place] < other.values[place];
                            });
    std::vector<double> values{least->values[place]};
    if (most->values[place] > values.front())
      values.push_back(most->values[place]);
    return values;
  }

  /// What is wrong with a run that has this value, or nothing.
  QString faultWith(RunInput& input, double value) const {
    const QString impossible = QStringLiteral("the site can't be computed: %1");
    if (const QStringList faults = input.read({value}); !faults.isEmpty())
      return impossible.arg(faults.first());
    try {
      const PlannedSite run = plannedSite();
      const QString fault = unfitness(layout_, run.times.times, run.plan.wells.size());
      return fault.isEmpty() ? QString() : QStringLiteral("the run %1").arg(fault);
    } catch (const std::exception& error) {
      return impossible.arg(error.what());
    }
  }

  /// What is wrong with a key whose cell held this after runs with different values had been read.
  static QString cellFault(const StudyKey& key, const std::vector<double>& cells) {
    if (!key.cell)
      return {};
    const QString table = key.name.section('\\', 0, 0);
    const int rows = rowsOf(*Data::Manager::instance(), key.cell->table);
    if (key.cell->row >= rows)
      return QStringLiteral("expected a row of %1 in the base, which has %2 of them")
          .arg(table)
          .arg(rows);
    // A batch file without a table has its rows by design, and takes no cell of another file.
    if (cells.size() > 1 && cells.front() == cells.back())
      return QStringLiteral("expected a base in which the table %1 stands").arg(table);
    return {};
  }

  QString placeOf(const StudyKey& key) const {
    return study_.sampler == Sampler::Table ? QStringLiteral("%1, line 1: %2: ")
                                                  .arg(QFileInfo(study_.table).fileName(), key.name)
                                            : QStringLiteral("[vary] %1: ").arg(key.name);
  }

  const StudyFile& study_;
  const Plan& plan_;
  const ResultLayout& layout_;
  Findings& findings_;
};

} // namespace

void checkExtremes(const StudyFile& study, const Plan& plan, const ResultLayout& layout,
                   Findings& findings) {
  ExtremeCheck check(study, plan, layout, findings);
  for (std::size_t place = 0; place < plan.keys.size(); ++place)
    check.check(place);
}

} // namespace TVR::Study
