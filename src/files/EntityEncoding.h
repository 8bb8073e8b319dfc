#pragma once

#include <QString>

namespace TVR {

/// Umlauts and accented letters as the entities that project files have always carried ("&auml;"
/// for ä). The result holds the UTF-8 bytes of the text, up to the first NUL byte, as one Latin-1
/// character each: a character outside ASCII that has no entity becomes two or more of them, and
/// decoding does not undo that.
QString encodeEntities(const QString& text);

/// Replaces the entities by their letters. The entity "&Acirc;", which â and Â share, becomes â.
QString decodeEntities(const QString& text);

} // namespace TVR
