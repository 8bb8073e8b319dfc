#include "study/pest/CalibrationFiles.h"

#include "study/plan/Plan.h"

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <optional>

namespace TVR::Study {

namespace {

constexpr int longestName = 12;
/// What may stand around a number that is to be filled in: no letter and no digit.
constexpr char marks[] = "~@$%&^?|";
/// Wide enough for all digits of a number.
constexpr int markWidth = 25;

constexpr double lowestShare = 0.001;
constexpr double highestShare = 0.999;

/// A mark that nothing else in the base could be taken for; none if it has all of them.
std::optional<char> markFor(const QByteArray& base) {
  const auto* const found = std::find_if(std::begin(marks), std::end(marks) - 1,
                                         [&](char mark) { return !base.contains(mark); });
  return found == std::end(marks) - 1 ? std::nullopt : std::optional(*found);
}

QString shortName(const QString& key, const QStringList& taken) {
  QString plain = key.toLower();
  plain.replace('\\', '_');
  QString name = plain.left(longestName);
  for (int number = 2; taken.contains(name); ++number) {
    const QString suffix = QString::number(number);
    name = plain.left(longestName - suffix.size()) + suffix;
  }
  return name;
}

bool isLogarithmic(const Distribution& distribution) {
  return distribution.shape == Shape::LogUniform || distribution.shape == Shape::LogNormal;
}

QString line(const QStringList& words) {
  return words.join(' ') + '\n';
}

QString parameterLine(const CalibratedKey& key) {
  const Distribution& distribution = key.varied.distribution;
  const double least = distribution.quantile(lowestShare);
  const double most = distribution.quantile(highestShare);
  // Numbers of either sign can't change by a factor.
  const bool isPositive = least > 0;
  return line({key.name, isLogarithmic(distribution) ? "log" : "none",
               isPositive ? "factor" : "relative", exactText(std::clamp(key.start, least, most)),
               exactText(least), exactText(most), "site", "1.0", "0.0", "1"});
}

} // namespace

QStringList calibrationFaults(const StudyFile& study, const QByteArray& content) {
  QStringList faults;
  if (study.varied.empty())
    faults << "[study] sampler: expected one with keys in [vary], which are calibrated, found "
              "\"table\"";
  for (const VariedKey& varied : study.varied)
    if (varied.distribution.shape == Shape::List)
      faults << QStringLiteral(
                    "[vary] %1: expected a distribution with a range, in which the key can "
                    "be calibrated, found \"%2\"")
                    .arg(varied.key.name, toText(varied.distribution));
  if (!markFor(content))
    faults << QStringLiteral(
                  "[study] base: expected a file without one of the characters %1, which "
                  "then marks the numbers")
                  .arg(marks);
  return faults;
}

std::vector<CalibratedKey> calibratedKeys(const std::vector<VariedKey>& varied,
                                          const std::vector<double>& baseNumbers) {
  std::vector<CalibratedKey> keys;
  QStringList names;
  for (std::size_t i = 0; i < varied.size(); ++i) {
    names << shortName(varied[i].key.name, names);
    const Distribution& distribution = varied[i].distribution;
    const bool isInside = baseNumbers[i] >= distribution.quantile(lowestShare) &&
                          baseNumbers[i] <= distribution.quantile(highestShare);
    keys.push_back(
        {names.back(), varied[i], isInside ? baseNumbers[i] : distribution.quantile(0.5)});
  }
  return keys;
}

QByteArray calibrationTemplate(const QByteArray& base, const std::vector<CalibratedKey>& keys) {
  const char mark = markFor(base).value();
  QByteArray content = QByteArray("ptf ") + mark + '\n' + base;
  for (const CalibratedKey& key : keys)
    content += QStringLiteral("\n[%1]\n%2=%3%4%3\n")
                   .arg(key.varied.key.section, key.varied.key.name, QString(mark))
                   .arg(key.name, -(markWidth - 2))
                   .toUtf8();
  return content;
}

QByteArray calibrationInstructions(const std::vector<Observation>& observations) {
  QByteArray content = "pif @\n";
  for (const Observation& observation : observations)
    content += QStringLiteral("l1 [%1]22:46\n").arg(observation.name).toUtf8();
  return content;
}

QByteArray calibrationControl(const std::vector<CalibratedKey>& keys,
                              const std::vector<Observation>& observations) {
  using namespace CalibrationFile;
  QStringList groups;
  for (const Observation& observation : observations)
    groups << nameOf(observation.quantity);
  groups.removeDuplicates();

  QString text = "pcf\n* control data\nrestart estimation\n";
  text += line({QString::number(keys.size()), QString::number(observations.size()), "1", "0",
                QString::number(groups.size())});
  text += "1 1 double point 1 0 0\n"
          "5.0 2.0 0.3 0.03 10\n"
          "3.0 3.0 0.001\n"
          "0.1\n"
          "30 0.005 4 4 0.005 4\n"
          "1 1 1\n"
          "* parameter groups\n"
          "site relative 0.01 0.0 switch 2.0 parabolic\n"
          "* parameter data\n";
  for (const CalibratedKey& key : keys)
    text += parameterLine(key);
  text += "* observation groups\n" + groups.join('\n') + "\n* observation data\n";
  for (const Observation& observation : observations)
    text += line({observation.name, exactText(observation.value), exactText(observation.weight),
                  nameOf(observation.quantity)});
  text += line({"* model command line\ntevrane-study observe", base, CalibrationFile::observations,
                simulated});
  text += "* model input/output\n" + line({markedBase, base}) + line({instructions, simulated});
  text += "* prior information\n";
  return text.toUtf8();
}

} // namespace TVR::Study
