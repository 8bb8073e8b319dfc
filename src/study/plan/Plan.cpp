#include "study/plan/Plan.h"

#include "study/plan/UnitSamples.h"
#include "study/plan/ValueTable.h"

#include <QCryptographicHash>
#include <QHash>
#include <QLocale>

#include <algorithm>

namespace TVR::Study {

namespace {

Columns independentPoints(const StudyFile& study) {
  const std::size_t dimensions = study.varied.size();
  switch (study.sampler) {
  case Sampler::LatinHypercube:
    return latinHypercube(study.runs, dimensions, study.seed);
  case Sampler::Sobol:
    return sobolPoints(study.runs, dimensions, study.seed);
  case Sampler::Grid:
    return gridPoints(gridShares(study));
  case Sampler::Table:
    break;
  }
  return {};
}

Columns points(const StudyFile& study) {
  const Columns columns = independentPoints(study);
  if (study.correlations.empty())
    return columns;
  return study.sampler == Sampler::Sobol ? bent(columns, study.correlations)
                                         : reordered(columns, study.correlations);
}

ValueTable sampledValues(const StudyFile& study) {
  ValueTable values;
  values.columns = points(study);
  for (std::size_t i = 0; i < study.varied.size(); ++i) {
    const VariedKey& varied = study.varied[i];
    values.keys.push_back(varied.key);
    for (double& number : values.columns[i])
      number = varied.distribution.quantile(number);
  }
  return values;
}

QByteArray shortHex(const QCryptographicHash& hash) {
  return hash.result().toHex().left(32);
}

} // namespace

std::size_t Plan::endOf(std::size_t part) const {
  return std::min((part + 1) * runsPerPart, runs.size());
}

QString exactText(double number) {
  return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QByteArray digestOf(const QByteArray& baseContent) {
  return QCryptographicHash::hash(baseContent, QCryptographicHash::Sha256);
}

QByteArray runName(const QByteArray& baseDigest, const std::vector<StudyKey>& keys,
                   const std::vector<double>& values, const QByteArray& version) {
  QStringList lines;
  for (std::size_t i = 0; i < keys.size(); ++i)
    lines << QStringLiteral("%1=%2\n").arg(keys[i].name, exactText(values[i]));
  lines.sort();
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData("tevrane-study run 1\n" + version + '\n');
  hash.addData(baseDigest);
  hash.addData(lines.join(QString()).toUtf8());
  return shortHex(hash);
}

Plan makePlan(const StudyFile& study, const QByteArray& baseDigest, Findings& findings) {
  const ValueTable values = study.sampler == Sampler::Table
                                ? readValueTable(study.table, mostRuns, findings)
                                : sampledValues(study);
  Plan plan;
  plan.keys = values.keys;
  QHash<QByteArray, std::size_t> places;
  for (std::size_t row = 0; row < values.rows(); ++row) {
    PlannedRun run;
    for (const std::vector<double>& column : values.columns)
      run.values.push_back(column[row]);
    run.name = runName(baseDigest, plan.keys, run.values);
    if (const auto known = places.constFind(run.name); known != places.constEnd()) {
      ++plan.runs[*known].repeats;
      continue;
    }
    places.insert(run.name, plan.runs.size());
    plan.runs.push_back(std::move(run));
  }
  plan.runsPerPart = study.runsPerPart;
  plan.canGrow = study.sampler == Sampler::Sobol || study.sampler == Sampler::Table;
  return plan;
}

QByteArray sampleTable(const Plan& plan) {
  QStringList keys;
  for (const StudyKey& key : plan.keys)
    keys << key.name;
  QByteArray table = keys.join(',').toUtf8() + '\n';
  for (const PlannedRun& run : plan.runs) {
    QStringList values;
    for (const double value : run.values)
      values << exactText(value);
    table += (values.join(',').toUtf8() + '\n').repeated(run.repeats);
  }
  return table;
}

QByteArray partName(const Plan& plan, std::size_t part, const QByteArray& layoutId) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData("tevrane-study part 1\n" + layoutId + '\n');
  for (std::size_t i = plan.firstOf(part); i < plan.endOf(part); ++i)
    hash.addData(plan.runs[i].name + ' ' + QByteArray::number(plan.runs[i].repeats) + '\n');
  return shortHex(hash);
}

} // namespace TVR::Study
