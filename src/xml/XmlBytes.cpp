#include "xml/XmlBytes.h"

#include <QDomDocument>
#include <QXmlStreamWriter>

#include <algorithm>
#include <utility>
#include <vector>

namespace TVR {

namespace {

/// Attributes that say what an element is come first, the others by name.
std::vector<std::pair<QString, QString>> orderedAttributes(const QDomElement& element) {
  static const QStringList leading = {"id", "Type", "Number", "Version"};
  std::vector<std::pair<QString, QString>> ordered;
  const QDomNamedNodeMap attributes = element.attributes();
  ordered.reserve(attributes.count());
  for (int index = 0; index < attributes.count(); ++index)
    ordered.emplace_back(attributes.item(index).nodeName(), attributes.item(index).nodeValue());
  const auto rank = [](const QString& name) {
    const int place = leading.indexOf(name);
    return place < 0 ? leading.size() : place;
  };
  std::sort(ordered.begin(), ordered.end(), [&rank](const auto& one, const auto& other) {
    return std::pair(rank(one.first), one.first) < std::pair(rank(other.first), other.first);
  });
  return ordered;
}

/// A carriage return stands as its number: a reader takes a bare one for a line feed.
void writeText(QXmlStreamWriter& writer, const QString& text) {
  const QStringList parts = text.split('\r');
  writer.writeCharacters(parts.first());
  for (int part = 1; part < parts.size(); ++part) {
    writer.writeEntityReference("#13");
    writer.writeCharacters(parts[part]);
  }
}

void writeNode(QXmlStreamWriter& writer, const QDomNode& node) {
  if (node.isText()) {
    writeText(writer, xmlText(node.nodeValue()));
  } else if (node.isComment()) {
    writer.writeComment(xmlText(node.nodeValue()));
  } else if (node.isElement()) {
    writer.writeStartElement(node.nodeName());
    for (const auto& [name, value] : orderedAttributes(node.toElement()))
      writer.writeAttribute(name, xmlText(value));
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
      writeNode(writer, child);
    writer.writeEndElement();
  }
}

} // namespace

QString xmlText(const QString& text) {
  const auto isForbidden = [](QChar character) {
    const ushort code = character.unicode();
    return (code < 0x20 && code != '\t' && code != '\n' && code != '\r') || code >= 0xfffe;
  };
  QString kept;
  kept.reserve(text.size());
  for (int index = 0; index < text.size(); ++index) {
    const QChar character = text[index];
    const bool isPair =
        character.isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate();
    if (isPair)
      kept += character, kept += text[++index];
    else if (!character.isSurrogate() && !isForbidden(character))
      kept += character;
  }
  return kept;
}

QByteArray xmlBytes(const QDomDocument& document) {
  QByteArray bytes;
  QXmlStreamWriter writer(&bytes);
  writer.setAutoFormatting(true);
  writer.setAutoFormattingIndent(1);
  if (!document.doctype().name().isEmpty())
    writer.writeDTD("<!DOCTYPE " + document.doctype().name() + ">");
  for (QDomNode node = document.firstChild(); !node.isNull(); node = node.nextSibling())
    writeNode(writer, node);
  writer.writeEndDocument();
  return bytes.startsWith('\n') ? bytes.mid(1) : bytes;
}

} // namespace TVR
