#pragma once

#include <QByteArray>
#include <QDomDocument>

#include <optional>

namespace TVR::Page {

/// What a document may ask of its reader; more is refused before it costs memory or time.
struct XmlLimits {
  int bytes = 256 * 1024 * 1024;
  int depth = 200; ///< of nested elements
  int elements = 500'000;
  int attributesOfElement = 1000;
};

/// Parses a document in UTF-8 that nobody vouches for. Nothing if it is not well-formed, exceeds a
/// limit or has declarations of its own (entities, say). Text of white space only is dropped; the
/// document type is not kept.
std::optional<QDomDocument> parseXml(const QByteArray& bytes, const XmlLimits& limits = {});

/// Whether an element that was parsed elsewhere keeps to the limits of depth and number.
bool keepsLimits(const QDomElement& element, const XmlLimits& limits = {});

/// A document as UTF-8, indented by one blank. The same tree gives the same bytes in every process:
/// attributes stand in a fixed order.
QByteArray xmlBytes(const QDomDocument& document);

} // namespace TVR::Page
