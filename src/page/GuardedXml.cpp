#include "page/GuardedXml.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <utility>
#include <vector>

namespace TVR::Page {

namespace {

/// Looks at the tags of a text before it is parsed: the parser compares the attributes of a tag
/// pair by pair, so that one with very many of them would take for ever, and it follows the
/// declarations of a document type, which no page has. Sure up to the first place that is not
/// well-formed, where the parser gives up too.
class TagScan {
public:
  TagScan(const QString& text, int mostAttributes) : text_(text), mostAttributes_(mostAttributes) {}

  bool isHarmless() {
    for (place_ = text_.indexOf('<'); place_ >= 0; place_ = text_.indexOf('<', place_)) {
      if (startsWith("<!--"))
        skipBehind("-->");
      else if (startsWith("<![CDATA["))
        skipBehind("]]>");
      else if (startsWith("<?"))
        skipBehind("?>");
      else if (!skipTag())
        return false;
    }
    return true;
  }

private:
  bool startsWith(const char* token) const {
    return QStringView(text_).mid(place_).startsWith(QLatin1String(token));
  }

  void skipBehind(const char* token) {
    const int end = text_.indexOf(QLatin1String(token), place_ + 2);
    place_ = end < 0 ? text_.size() : end;
  }

  bool skipTag() {
    const bool isDeclaration = startsWith("<!");
    int attributes = 0;
    QChar quote;
    for (++place_; place_ < text_.size(); ++place_) {
      const QChar character = text_[place_];
      if (!quote.isNull()) {
        if (character == quote)
          quote = QChar();
      } else if (character == '"' || character == '\'') {
        quote = character;
      } else if (character == '>') {
        return true;
      } else if ((character == '=' && ++attributes > mostAttributes_) ||
                 (character == '[' && isDeclaration)) {
        return false;
      }
    }
    return true;
  }

  const QString& text_;
  const int mostAttributes_;
  int place_ = 0;
};

/// Builds the tree of a document from the stream of its tokens.
class TreeBuilder {
public:
  TreeBuilder(const QString& text, const XmlLimits& limits) : reader_(text), limits_(limits) {
    reader_.setNamespaceProcessing(false);
    reader_.setEntityExpansionLimit(0);
  }

  std::optional<QDomDocument> build() {
    while (!reader_.atEnd() && accept(reader_.readNext())) {
    }
    if (reader_.hasError() || !isAccepted_ || document_.documentElement().isNull())
      return std::nullopt;
    return document_;
  }

private:
  bool accept(QXmlStreamReader::TokenType token) {
    switch (token) {
    case QXmlStreamReader::StartElement:
      flushText();
      isAccepted_ = startElement();
      break;
    case QXmlStreamReader::EndElement:
      flushText();
      current_ = current_.parentNode();
      --depth_;
      break;
    case QXmlStreamReader::Characters:
      text_ += reader_.text();
      break;
    case QXmlStreamReader::Comment:
      flushText();
      current_.appendChild(document_.createComment(reader_.text().toString()));
      break;
    case QXmlStreamReader::EntityReference:
      isAccepted_ = false;
      break;
    default:
      break;
    }
    return isAccepted_;
  }

  bool startElement() {
    if (++depth_ > limits_.depth || ++elements_ > limits_.elements)
      return false;
    QDomElement element = document_.createElement(reader_.qualifiedName().toString());
    for (const QXmlStreamAttribute& attribute : reader_.attributes())
      element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    current_ = current_.appendChild(element);
    return true;
  }

  void flushText() {
    const bool isBlank = std::all_of(text_.begin(), text_.end(),
                                     [](QChar character) { return character.isSpace(); });
    if (!isBlank)
      current_.appendChild(document_.createTextNode(text_));
    text_.clear();
  }

  QXmlStreamReader reader_;
  const XmlLimits& limits_;
  QDomDocument document_{QDomDocumentType()};
  QDomNode current_ = document_;
  QString text_;
  int depth_ = 0;
  int elements_ = 0;
  bool isAccepted_ = true;
};

/// Attributes that say what an element is come first, the others by name.
std::vector<std::pair<QString, QString>> orderedAttributes(const QDomElement& element) {
  static const QStringList leading = {"id", "Type", "Number", "Version"};
  std::vector<std::pair<QString, QString>> ordered;
  const QDomNamedNodeMap attributes = element.attributes();
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

void writeNode(QXmlStreamWriter& writer, const QDomNode& node) {
  if (node.isText()) {
    writer.writeCharacters(node.nodeValue());
  } else if (node.isComment()) {
    writer.writeComment(node.nodeValue());
  } else if (node.isElement()) {
    writer.writeStartElement(node.nodeName());
    for (const auto& [name, value] : orderedAttributes(node.toElement()))
      writer.writeAttribute(name, value);
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
      writeNode(writer, child);
    writer.writeEndElement();
  }
}

} // namespace

std::optional<QDomDocument> parseXml(const QByteArray& bytes, const XmlLimits& limits) {
  if (bytes.size() > limits.bytes)
    return std::nullopt;
  const QString text = QString::fromUtf8(bytes);
  if (!TagScan(text, limits.attributesOfElement).isHarmless())
    return std::nullopt;
  return TreeBuilder(text, limits).build();
}

bool keepsLimits(const QDomElement& element, const XmlLimits& limits) {
  int depth = 1;
  int elements = 1;
  QDomNode node = element;
  while (depth <= limits.depth && elements <= limits.elements) {
    if (node.hasChildNodes()) {
      node = node.firstChild();
      ++depth;
    } else {
      while (node != element && node.nextSibling().isNull()) {
        node = node.parentNode();
        --depth;
      }
      if (node == element)
        return true;
      node = node.nextSibling();
    }
    ++elements;
  }
  return false;
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

} // namespace TVR::Page
