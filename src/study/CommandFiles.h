#pragma once

#include <QString>
#include <QStringList>

namespace TVR::Study {

struct Options;
struct StudyFile;
class StudyFolder;

/// What is wrong with the files that a command about a study writes: one would take the place of
/// what is read, the study with its base and its table, or of what was computed; or the folder of
/// the results is none. Empty if nothing is wrong.
QString clashOfFiles(const Options& options, const StudyFile& study, const StudyFolder& folder);

/// The files that the command line names and that can't be written, a line each with the reason.
QStringList unwritableFiles(const Options& options);

} // namespace TVR::Study
