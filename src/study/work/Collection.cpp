#include "study/work/Collection.h"

#include "study/work/Journal.h"
#include "study/work/PartFile.h"
#include "study/work/StudySetup.h"

#include <QFileInfo>
#include <QSet>

namespace TVR::Study {

namespace {

/// Whether a part has fewer failed runs than the one that is there: somebody has retried them.
bool isBetter(const Part& part, const QString& present, const ResultLayout& layout) {
  const auto other = readPart(present, layout);
  return !other || failedRuns(part) < failedRuns(*other);
}

bool collectParts(const StudyFolder& from, const StudyFolder& into, const StudySetup& setup) {
  const QByteArray layoutId = idOf(setup.layout);
  for (std::size_t i = 0; i < setup.plan.parts(); ++i) {
    const QByteArray name = partName(setup.plan, i, layoutId);
    const auto part = readPart(from.part(name), setup.layout);
    if (part && isBetter(*part, into.part(name), setup.layout) &&
        !writePart(into.part(name), *part, setup.layout))
      return false;
  }
  return true;
}

bool collectJournals(const StudyFolder& from, const StudyFolder& into, const StudySetup& setup) {
  const QByteArray layoutId = idOf(setup.layout);
  Journal journal(into.journal(layoutId, "collected"));
  if (journal.open() != Journal::Opening::Done)
    return false;
  QSet<QByteArray> known;
  for (const QString& file : into.journals(layoutId))
    for (const QByteArray& line : Journal::linesOf(file))
      known.insert(line);
  for (const QString& file : from.journals(layoutId))
    for (const QByteArray& line : Journal::linesOf(file)) {
      const bool isNew = !known.contains(line) && recordFromLine(line, setup.layout).has_value();
      if (isNew && !journal.append(line))
        return false;
      known.insert(line);
    }
  return true;
}

} // namespace

QString collect(const StudyFolder& from, const StudyFolder& into, const StudySetup& setup) {
  if (QFileInfo(from.path()).canonicalFilePath() == QFileInfo(into.path()).canonicalFilePath())
    return {};
  if (!collectParts(from, into, setup) || !collectJournals(from, into, setup))
    return QStringLiteral("what %1 holds can't be written to %2").arg(from.path(), into.path());
  return {};
}

} // namespace TVR::Study
