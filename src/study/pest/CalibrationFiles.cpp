#include "study/pest/CalibrationFiles.h"

#include "study/plan/Plan.h"

#include <QStringList>

#include <algorithm>

namespace TVR::Study {

namespace {

constexpr int longestName = 12;
constexpr char mark = '~';
/// Wide enough for all digits of a number.
constexpr int markWidth = 25;

constexpr double lowestShare = 0.001;
constexpr double highestShare = 0.999;

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
