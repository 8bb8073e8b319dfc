#include "study/plan/StudyFile.h"

#include "study/plan/ResultLayout.h"
#include "study/plan/StudyLines.h"
#include "study/plan/UnitSamples.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace TVR::Study {

namespace {

constexpr qint64 mostBytes = 1 << 20;

/// In the order of Sampler.
const QStringList& samplerNames() {
  static const QStringList names{"latin-hypercube", "sobol", "grid", "table"};
  return names;
}

QStringList wordsOf(const QString& text) {
  return text.split(QRegularExpression("[\\s,]+"), Qt::SkipEmptyParts);
}

std::optional<double> numberIn(const QString& text) {
  bool ok = false;
  const double number = text.toDouble(&ok);
  return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

/// Reads the lines of a study into a StudyFile.
class Reader {
public:
  Reader(const QString& fileName, Findings& findings) : findings_(findings) {
    study_.fileName = fileName;
  }

  StudyFile read() {
    QFile file(study_.fileName);
    if (!file.open(QIODevice::ReadOnly)) {
      fail(QFile::exists(study_.fileName)
               ? QStringLiteral("can't be read: %1").arg(file.errorString())
               : QStringLiteral("no such file; expected a study file"));
      return study_;
    }
    const QByteArray content = file.read(mostBytes + 1);
    if (content.size() > mostBytes) {
      fail("is no study file; expected at most 1 MiB");
      return study_;
    }
    lines_ = studyLines(QString::fromUtf8(content), findings_.errors);
    for (const StudyLine& line : lines_)
      if (isFirst(line))
        take(line);
    if (findings_.errors.isEmpty())
      checkWhole();
    return study_;
  }

private:
  using Take = void (Reader::*)(const StudyLine&);
  struct Row {
    const char* section;
    const char* key;
    Take take;
  };

  void fail(const QString& text) { findings_.errors << text; }
  void failAt(const StudyLine& line, const QString& expected) {
    fail(QStringLiteral("%1expected %2, found \"%3\"").arg(line.place(), expected, line.value));
  }

  bool isFirst(const StudyLine& line) {
    const auto first = std::find_if(lines_.begin(), lines_.end(), [&](const StudyLine& other) {
      return other.section == line.section && other.key == line.key;
    });
    if (first->number != line.number)
      fail(QStringLiteral("%1expected one line with this key, but line %2 has it too")
               .arg(line.place())
               .arg(first->number));
    return first->number == line.number;
  }

  void take(const StudyLine& line) {
    static constexpr Row rows[] = {
        {"study", "base", &Reader::takeBase},
        {"study", "sampler", &Reader::takeSampler},
        {"study", "runs", &Reader::takeRuns},
        {"study", "seed", &Reader::takeSeed},
        {"study", "grid_points", &Reader::takeGridPoints},
        {"study", "table", &Reader::takeTable},
        {"study", "time_limit", &Reader::takeTimeLimit},
        {"study", "runs_per_part", &Reader::takeRunsPerPart},
        {"answers", "quantities", &Reader::takeQuantities},
        {"answers", "times", &Reader::takeTimes},
        {"answers", "levels", &Reader::takeLevels},
        {"answers", "raster", &Reader::takeRaster},
        {"answers", "raster_cell", &Reader::takeRasterCell},
        {"answers", "mesh_bands", &Reader::takeMeshBands},
    };
    if (line.section == "vary") {
      takeVaried(line);
      return;
    }
    if (line.section == "correlations") {
      takeCorrelation(line);
      return;
    }
    const auto* row = std::find_if(std::begin(rows), std::end(rows), [&](const Row& one) {
      return line.section == one.section && line.key == one.key;
    });
    if (row != std::end(rows)) {
      (this->*row->take)(line);
      return;
    }
    QStringList known;
    for (const Row& one : rows)
      if (line.section == one.section)
        known << one.key;
    fail(known.isEmpty()
             ? QStringLiteral("%1expected one of the sections [study], [vary], [correlations] and "
                              "[answers]")
                   .arg(line.place())
             : QStringLiteral("%1expected one of the keys %2").arg(line.place(), known.join(", ")));
  }

  QString besideStudy(const QString& name) const {
    return QFileInfo(QFileInfo(study_.fileName).absoluteDir(), name).absoluteFilePath();
  }

  void takeBase(const StudyLine& line) {
    study_.base = besideStudy(line.value);
    if (line.value.isEmpty() || !QFileInfo(study_.base).isFile())
      failAt(line, "the name of a batch file or project file beside the study");
  }

  void takeTable(const StudyLine& line) {
    study_.table = besideStudy(line.value);
    if (line.value.isEmpty() || !QFileInfo(study_.table).isFile())
      failAt(line, "the name of a CSV table with one run a row");
  }

  void takeSampler(const StudyLine& line) {
    const QStringList& names = samplerNames();
    const int place = names.indexOf(line.value);
    if (place < 0)
      failAt(line, names.mid(0, 3).join(", ") + " or " + names.last());
    else
      study_.sampler = static_cast<Sampler>(place);
  }

  /// A whole number from `least` to `most`, or an error.
  std::optional<std::uint64_t> whole(const StudyLine& line, double least, double most) {
    bool ok = false;
    const qulonglong number = line.value.toULongLong(&ok);
    if (ok && static_cast<double>(number) >= least && static_cast<double>(number) <= most)
      return number;
    failAt(line, QStringLiteral("a whole number from %1 to %2")
                     .arg(QString::number(least, 'g', 12), QString::number(most, 'g', 12)));
    return {};
  }

  void takeSize(const StudyLine& line, double most, std::size_t& size) {
    if (const auto number = whole(line, 1, most))
      size = static_cast<std::size_t>(*number);
  }

  void takeRuns(const StudyLine& line) { takeSize(line, mostRuns, study_.runs); }
  void takeGridPoints(const StudyLine& line) { takeSize(line, 1000, study_.gridPoints); }
  void takeRunsPerPart(const StudyLine& line) { takeSize(line, 100000, study_.runsPerPart); }
  void takeSeed(const StudyLine& line) {
    study_.seed = whole(line, 0, 4294967295.0).value_or(study_.seed);
  }

  /// A number within bounds, or an error.
  std::optional<double> number(const StudyLine& line, double least, double most,
                               const QString& unit) {
    const std::optional<double> found = numberIn(line.value);
    if (found && *found >= least && *found <= most)
      return found;
    failAt(line, boundsText({least, most}, RangeVerdict::Impossible, unit));
    return {};
  }

  void takeTimeLimit(const StudyLine& line) {
    study_.timeLimit = number(line, 0.1, 1e6, "s").value_or(study_.timeLimit);
  }
  void takeRasterCell(const StudyLine& line) { study_.rasterCell = number(line, 1e-3, 1e6, "m"); }

  std::optional<std::vector<double>> numbers(const QString& text) const {
    std::vector<double> result;
    for (const QString& word : wordsOf(text)) {
      const std::optional<double> one = numberIn(word);
      if (!one)
        return {};
      result.push_back(*one);
    }
    return result;
  }

  /// Ascending numbers, each once; none if there is an error.
  std::vector<double> ascending(const StudyLine& line, const QString& expected, double least,
                                bool withZero) {
    std::vector<double> found = numbers(line.value).value_or(std::vector<double>());
    std::sort(found.begin(), found.end());
    const bool isFit = !found.empty() && found.front() >= least && found.size() <= 100 &&
                       std::adjacent_find(found.begin(), found.end()) == found.end() &&
                       (withZero || std::find(found.begin(), found.end(), 0.0) == found.end());
    if (!isFit) {
      failAt(line, expected);
      found.clear();
    }
    return found;
  }

  void takeTimes(const StudyLine& line) {
    study_.times = ascending(line, "times in years above 0, up to 100 of them", 0, false);
  }
  void takeLevels(const StudyLine& line) {
    study_.levels =
        ascending(line, "temperature changes in K other than 0, up to 100 of them", -1000, false);
  }

  void takeQuantities(const StudyLine& line) {
    study_.quantities = wordsOf(line.value);
    for (const QString& name : study_.quantities)
      if (!quantityNames().contains(name)) {
        failAt(line, "some of " + quantityNames().join(", "));
        return;
      }
  }

  void takeRaster(const StudyLine& line) {
    const auto found = numbers(line.value);
    if (!found || found->size() != 4 || !((*found)[2] > 0) || !((*found)[3] > 0)) {
      failAt(line, "left, bottom, width and height of a rectangle on the map, in m");
      return;
    }
    study_.raster = RasterBox{(*found)[0], (*found)[1], (*found)[2], (*found)[3]};
  }

  void takeMeshBands(const StudyLine& line) {
    study_.meshBands = line.value == "true";
    if (!study_.meshBands && line.value != "false")
      failAt(line, "true or false");
  }

  void takeVaried(const StudyLine& line) {
    const std::optional<StudyKey> key = studyKey(line.key);
    if (!key) {
      fail(QStringLiteral("%1expected the key of a number in a batch file, such as kf, or a cell "
                          "of its tables, such as well_model\\1\\3")
               .arg(line.place()));
      return;
    }
    QString expected;
    const std::optional<Distribution> distribution = parseDistribution(line.value, expected);
    if (!distribution) {
      failAt(line, expected);
      return;
    }
    const std::optional<Distribution> bounded = within(*distribution, key->range);
    if (!bounded)
      failAt(line, QStringLiteral("values within %1")
                       .arg(boundsText(key->range, RangeVerdict::Impossible, key->unit)));
    else if (key->isChoice && !isListOfWholeNumbers(*bounded))
      failAt(line, "list(VALUE, ...) of whole numbers");
    else if (isMostlyThere(line, *key, *bounded))
      study_.varied.push_back({*key, *bounded});
  }

  /// Whether enough of a distribution lies within its bounds to be meant as it is; if not, that is
  /// told.
  bool isMostlyThere(const StudyLine& line, const StudyKey& key, const Distribution& bounded) {
    constexpr double leastShare = 0.01;
    constexpr double usualShare = 0.5;
    const double share = keptShare(bounded);
    const QString bounds =
        boundsText({bounded.least, bounded.most}, RangeVerdict::Impossible, key.unit);
    if (share < leastShare)
      failAt(line,
             QStringLiteral("a distribution of which 1 % or more lies within %1").arg(bounds));
    else if (share < usualShare)
      findings_.warnings << QStringLiteral("%1%2 % of the distribution lie within %3, the rest is "
                                           "cut off")
                                .arg(line.place(), QString::number(100 * share, 'f', 0), bounds);
    return share >= leastShare;
  }

  static bool isListOfWholeNumbers(const Distribution& distribution) {
    return distribution.shape == Shape::List &&
           std::all_of(distribution.numbers.begin(), distribution.numbers.end(),
                       [](double number) { return number == std::trunc(number); });
  }

  std::optional<std::size_t> placeOf(const QString& name) const {
    for (std::size_t i = 0; i < study_.varied.size(); ++i)
      if (study_.varied[i].key.name == name)
        return i;
    return {};
  }

  void takeCorrelation(const StudyLine& line) {
    const QStringList names = wordsOf(line.key);
    const auto one = placeOf(names.value(0));
    const auto other = placeOf(names.value(1));
    if (names.size() != 2 || !one || !other || *one == *other) {
      fail(QStringLiteral("%1expected two keys of the section [vary] above it, as in \"kf, "
                          "aquifer_porosity=0.5\"")
               .arg(line.place()));
      return;
    }
    const bool isTold = std::any_of(
        study_.correlations.begin(), study_.correlations.end(), [&](const CorrelatedPair& pair) {
          return std::minmax(pair.one, pair.other) == std::minmax(*one, *other);
        });
    if (isTold)
      fail(line.place() + "expected one line for each pair of keys, but another one has it too");
    else if (const auto correlation = number(line, -0.99, 0.99, {}))
      study_.correlations.push_back({*one, *other, *correlation});
  }

  void checkWhole() {
    if (study_.base.isEmpty())
      fail("[study] base: expected the name of a batch file or project file");
    const bool isTable = study_.sampler == Sampler::Table;
    if (isTable && study_.table.isEmpty())
      fail("[study] table: expected the name of a CSV table for sampler=table");
    if (isTable && !study_.varied.empty())
      fail("[vary]: expected no keys beside sampler=table, whose columns name them");
    if (!isTable && study_.varied.empty())
      fail("[vary]: expected a key that is varied, as in kf=log-uniform(0.001, 0.01)");
    if (!study_.correlations.empty())
      checkCorrelations();
    if (!study_.varied.empty())
      checkSize();
    for (const StudyLine& line : lines_)
      if (line.section == "study" && !isOfUse(line.key))
        fail(QStringLiteral("%1expected no such key beside sampler=%2, which has no use for it")
                 .arg(line.place(), samplerNames()[static_cast<int>(study_.sampler)]));
  }

  /// Whether the sampler asks for a key.
  bool isOfUse(const QString& key) const {
    const bool isTable = study_.sampler == Sampler::Table;
    const bool isGrid = study_.sampler == Sampler::Grid;
    if (key == "runs" || key == "seed")
      return !isTable && !isGrid;
    return (key != "grid_points" || isGrid) && (key != "table" || isTable);
  }

  /// A sample is held in memory as a whole.
  void checkSize() {
    constexpr double mostValues = 1e8;
    const bool isGrid = study_.sampler == Sampler::Grid;
    double runs = isGrid ? 1 : static_cast<double>(study_.runs);
    for (const std::size_t share : isGrid ? gridShares(study_) : std::vector<std::size_t>())
      runs *= static_cast<double>(share);
    const std::size_t keys = study_.varied.size();
    const double most =
        std::min(static_cast<double>(mostRuns), std::floor(mostValues / static_cast<double>(keys)));
    if (runs > most)
      fail(QStringLiteral("[study] %1: expected at most %2 runs of %3 keys, found %4")
               .arg(isGrid ? "grid_points" : "runs", QString::number(most, 'g', 12))
               .arg(keys)
               .arg(QString::number(runs, 'g', 12)));
    if (study_.sampler == Sampler::Sobol && keys > mostSobolDimensions)
      fail(QStringLiteral("[vary]: expected at most %1 keys for sampler=sobol, found %2")
               .arg(mostSobolDimensions)
               .arg(keys));
  }

  void checkCorrelations() {
    if (study_.sampler != Sampler::LatinHypercube && study_.sampler != Sampler::Sobol)
      fail("[correlations]: expected sampler=latin-hypercube or sampler=sobol beside them");
    else if (!areConsistent(study_.correlations, study_.varied.size()))
      fail("[correlations]: expected correlations that go together, which can't all hold at once");
    else if (study_.sampler == Sampler::LatinHypercube && study_.runs <= 2 * study_.varied.size())
      fail(QStringLiteral("[study] runs: expected more than %1 for correlated keys, found \"%2\"")
               .arg(2 * study_.varied.size())
               .arg(study_.runs));
  }

  Findings& findings_;
  std::vector<StudyLine> lines_;
  StudyFile study_;
};

} // namespace

std::vector<std::size_t> gridShares(const StudyFile& study) {
  std::vector<std::size_t> shares;
  for (const VariedKey& varied : study.varied)
    shares.push_back(varied.distribution.shape == Shape::List ? varied.distribution.numbers.size()
                                                              : study.gridPoints);
  return shares;
}

StudyFile readStudyFile(const QString& fileName, Findings& findings) {
  return Reader(fileName, findings).read();
}

} // namespace TVR::Study
