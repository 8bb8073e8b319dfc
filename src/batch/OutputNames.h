#pragma once

#include <QString>
#include <QStringList>

namespace TVR::Batch {

/// The table of a batch file or project file that is run without a name for it: what the file says,
/// else the file's own name with ".out" for its ending.
QString tableNameOf(const QString& fileName);

/// What is wrong with the names that a run reads and writes, or several runs: an output that would
/// take the place of an input, or of another output. Names of one file are one, whatever they look
/// like. Empty if nothing is wrong.
QString clashOf(const QStringList& inputs, const QStringList& outputs);

} // namespace TVR::Batch
