#pragma once

#include <QString>
#include <QStringList>

namespace TVR::Study {

struct Options;
struct StudyFile;
class StudyFolder;

/// What is wrong with the files and folders of a command about a study. Empty if nothing is.
///
/// No file that is written takes the place of what is read, the study with its base and its table,
/// or of what was computed. Folders are folders; those that are read are those of a study of this
/// base, but that of the study itself may not be there yet.
QString faultOfFiles(const Options& options, const StudyFile& study, const StudyFolder& folder);

/// The files that the command line names and that can't be written, a line each with the reason.
QStringList unwritableFiles(const Options& options);

} // namespace TVR::Study
