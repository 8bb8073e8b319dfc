#pragma once

#include <QByteArray>
#include <QString>

namespace TVR {

/// All bytes of a file; none if it can't be read.
QByteArray contentOf(const QString& fileName);

} // namespace TVR
