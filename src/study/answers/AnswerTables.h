#pragma once

#include "study/plan/ResultLayout.h"
#include "study/work/Record.h"

#include <QIODevice>
#include <QString>

namespace TVR::Study {

class Results;
class StudyFolder;
struct AnswerSummary;
struct StudySetup;

/// Writes the head of the long table of answers (CSV): run, well, time [a], quantity, value, unit.
void writeAnswerHead(QIODevice& device);
/// Writes the answers of a run, a line each: its scalars, with the level behind the name of the
/// quantity ("plume_length 3 K"), and its series. A scalar that stands in a series is not written
/// twice. A run that failed has no lines, and what is no number has none.
void writeAnswers(QIODevice& device, const Record& record, const ResultLayout& layout);

/// Writes all runs, their answers and the summary into a new data base (SQLite), as docs/studies.md
/// describes it; the same bytes for the same study. False if it can't be written.
bool writeDatabase(const QString& fileName, const Results& results, const StudySetup& setup,
                   const AnswerSummary& summary);

/// Writes answers.csv, results.sqlite and summary.json into the folder of a study, all three or
/// none, and the summary to `json` too, unless that is empty. Returns the file that can't be
/// written, or nothing.
QString writeAnswerFiles(const StudyFolder& folder, const StudySetup& setup, const Results& results,
                         const QString& json);

} // namespace TVR::Study
