#pragma once

#include "batch/Options.h"

#include <QString>
#include <QStringList>

namespace TVR {
class TVRPlugin;
struct RunRequest;
struct StoredPage;
} // namespace TVR

namespace TVR::Batch {

/// Runs the project in the store as the program with windows does, up to the finished page, and
/// writes the files that are made from it. The project came from `fileName`, with the page
/// `stored`. Returns when all is done, with what went wrong, one text each. Needs a QApplication.
QStringList runToPage(TVRPlugin& plugin, const QString& fileName, const StoredPage& stored,
                      const RunRequest& request, const PageFiles& files);

} // namespace TVR::Batch
