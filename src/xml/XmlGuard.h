#pragma once

#include <QtGlobal>

#include <limits>

class QDomElement;
class QString;

namespace TVR {

/// What an XML text may ask of the reader, well beyond any project. The largest document within
/// these bounds takes seconds and about one and a half gigabytes; one beyond them is refused before
/// anything is built of it.
struct XmlLimits {
  static constexpr int none = std::numeric_limits<int>::max();

  int bytes = 128 << 20;            ///< size of the file
  int depth = 256;                  ///< elements inside each other
  int marks = 1'500'000;            ///< tags, comments and the like; most elements count twice
  int elements = none;              ///< beside the limit of marks
  int attributes = 2'000'000;       ///< of all elements together
  int attributesOfElement = none;   ///< a strict parser compares them pair by pair
  bool allowsDeclarations = true;   ///< whether the document type may declare anything
  int typeLength = 64 << 10;        ///< characters of the document type declaration
  int entityLength = 1024;          ///< characters of an entity; plain text without "&" and "<"
  qint64 expandedLength = 16 << 20; ///< characters that all uses of entities can grow to
};

/// Whether a text is within the limits of everything but bytes; surely known up to the first place
/// that is not well-formed, where a parser gives up too.
bool keepsLimits(const QString& text, const XmlLimits& limits = {});

/// Whether an element that was parsed elsewhere keeps to the limits of depth and number.
bool keepsLimits(const QDomElement& element, const XmlLimits& limits = {});

} // namespace TVR
