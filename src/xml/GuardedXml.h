#pragma once

#include "xml/XmlGuard.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>

#include <optional>

namespace TVR {

/// Reads a document of which nobody knows where it comes from. False, with an empty document, if it
/// is beyond the limits; false as well if it is not well-formed. Entities that the document itself
/// declares are expanded, files and addresses that it names are not looked at.
bool parseGuarded(const QByteArray& bytes, QDomDocument& document, const XmlLimits& limits = {});

/// The same for a file; false if it can't be read. Reads no byte of a file that is too large.
bool readGuarded(const QString& fileName, QDomDocument& document, const XmlLimits& limits = {});

/// Parses a document in UTF-8, faster and less tolerant. Nothing if it is not well-formed, exceeds
/// a limit or has declarations of its own (entities, say). Text of white space only is dropped; the
/// document type is not kept.
std::optional<QDomDocument> parseStrictly(const QByteArray& bytes, XmlLimits limits = {});

} // namespace TVR
