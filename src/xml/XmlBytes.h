#pragma once

#include <QByteArray>

class QDomDocument;

namespace TVR {

/// A document as UTF-8, indented by one blank. The same tree gives the same bytes in every process:
/// attributes stand in a fixed order.
QByteArray xmlBytes(const QDomDocument& document);

} // namespace TVR
