#pragma once

#include "study/engines/SubmitOptions.h"
#include "study/work/RecordKeeper.h"
#include "study/work/StudyFolder.h"
#include "terminal/Console.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace TVR::Study {

/// What the command line asks for.
struct Options {
  QString command;   ///< see `commands`
  QString file;      ///< the study, or the file to write
  QStringList more;  ///< what stands behind the file
  QString folder;    ///< empty: the usual one
  QStringList pages; ///< files to draw the page of a study to
  QString shapefile; ///< of plume bands; empty: none
  QString language;  ///< of the pages: "de", "en" or "fr"
  QString table;     ///< where the sample goes; empty: nowhere
  QString json;      ///< where the summary goes too; empty: nowhere
  Shard shard;
  int workers = 1;
  FailedRuns failed = FailedRuns::Stay;
  SubmitSettings submit;
  Talk talk = Talk::Normal;
};

/// Reads the command line. A text to print (help, version) or a mistake ends the program: then the
/// options are empty and `exitCode` is what to end with.
std::optional<Options> parseOptions(const QStringList& arguments, int& exitCode);

} // namespace TVR::Study
