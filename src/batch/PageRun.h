#pragma once

#include "batch/Options.h"

#include <QString>
#include <QStringList>

namespace TVR {
class TVRPlugin;
}

namespace TVR::Batch {

/// Runs a batch or project file as the program with windows does, up to the finished page, and
/// writes the files that are made from it. The table of well temperatures goes to `tableFile`.
/// Returns when all is done, with what went wrong, one text each. Needs a QApplication.
QStringList runToPage(TVRPlugin& plugin, const QString& fileName, const QString& tableFile,
                      const PageFiles& files);

} // namespace TVR::Batch
