#pragma once

#include <QString>
#include <QStringList>

namespace TVR {

/// What is wrong with the names that a run reads and writes, or several runs: an output that would
/// take the place of an input, or of another output. Names of one file are one, whatever they look
/// like. Empty if nothing is wrong.
QString clashOf(const QStringList& inputs, const QStringList& outputs);

/// Why a file of this name can't be written or replaced, as far as that can be seen beforehand.
/// Empty if nothing is in the way.
QString obstacleTo(const QString& fileName);

} // namespace TVR
