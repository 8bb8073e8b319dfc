#pragma once

#include <QByteArray>
#include <QDomDocument>
#include <QString>

namespace TVR {

/// What an XML text may ask of the reader, well beyond any project. The largest document within
/// these bounds takes seconds and about one and a half gigabytes; one beyond them is refused before
/// anything is built of it.
struct XmlLimits {
  int bytes = 128 << 20;            ///< size of the file
  int depth = 256;                  ///< elements inside each other
  int marks = 1'500'000;            ///< tags, comments and the like; most elements count twice
  int attributes = 2'000'000;       ///< of all elements together
  int typeLength = 64 << 10;        ///< characters of the document type declaration
  int entityLength = 1024;          ///< characters of an entity; plain text without "&" and "<"
  qint64 expandedLength = 16 << 20; ///< characters that all uses of entities can grow to
};

/// Reads a document of which nobody knows where it comes from. False, with an empty document, if it
/// is beyond the limits; false as well if it is not well-formed. Entities that the document itself
/// declares are expanded, files and addresses that it names are not looked at.
bool parseGuarded(const QByteArray& bytes, QDomDocument& document, const XmlLimits& limits = {});

/// The same for a file; false if it can't be read. Reads no byte of a file that is too large.
bool readGuarded(const QString& fileName, QDomDocument& document, const XmlLimits& limits = {});

} // namespace TVR
