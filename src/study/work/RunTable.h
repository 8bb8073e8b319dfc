#pragma once

#include "study/plan/ResultLayout.h"
#include "study/work/Record.h"

#include <QByteArray>
#include <QIODevice>

#include <vector>

namespace TVR::Study {

/// Writes the head of the table of runs (CSV): name, repeats and outcome of a run, the varied keys,
/// the scalars, and the reason of a failure; units stand in brackets.
void writeTableHead(QIODevice& device, const ResultLayout& layout);
/// Writes the line of a run.
void writeTableRow(QIODevice& device, const Record& record, const ResultLayout& layout);

} // namespace TVR::Study
