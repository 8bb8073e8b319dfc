#include "xml/GuardedXml.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <algorithm>

namespace TVR {

namespace {

/// The codec that the text names: by a byte order mark, or in its first line. Else UTF-8.
QTextCodec* codecOf(const QByteArray& bytes) {
  QTextCodec* const utf8 = QTextCodec::codecForName("UTF-8");
  QTextCodec* const marked = QTextCodec::codecForUtfText(bytes, nullptr);
  if (marked)
    return marked;
  static const QRegularExpression declaration(
      R"(^<\?xml\s[^>]*?encoding\s*=\s*["']([A-Za-z0-9._:-]+)["'])");
  const QRegularExpressionMatch match = declaration.match(QString::fromLatin1(bytes.left(400)));
  QTextCodec* const named =
      match.hasMatch() ? QTextCodec::codecForName(match.captured(1).toLatin1()) : nullptr;
  return named ? named : utf8;
}

/// Builds the tree of a document from the stream of its tokens.
class TreeBuilder {
public:
  explicit TreeBuilder(const QString& text) : reader_(text) {
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
      startElement();
      break;
    case QXmlStreamReader::EndElement:
      flushText();
      current_ = current_.parentNode();
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

  void startElement() {
    QDomElement element = document_.createElement(reader_.qualifiedName().toString());
    for (const QXmlStreamAttribute& attribute : reader_.attributes())
      element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    current_ = current_.appendChild(element);
  }

  void flushText() {
    const bool isBlank = std::all_of(text_.begin(), text_.end(),
                                     [](QChar character) { return character.isSpace(); });
    if (!isBlank)
      current_.appendChild(document_.createTextNode(text_));
    text_.clear();
  }

  QXmlStreamReader reader_;
  QDomDocument document_{QDomDocumentType()};
  QDomNode current_ = document_;
  QString text_;
  bool isAccepted_ = true;
};

} // namespace

bool parseGuarded(const QByteArray& bytes, QDomDocument& document, const XmlLimits& limits) {
  document.clear();
  if (bytes.size() > limits.bytes)
    return false;
  const QString text = codecOf(bytes)->toUnicode(bytes);
  if (!keepsLimits(text, limits))
    return false;
  // The parser gets the characters that the guard has seen, not the bytes.
  return document.setContent(text, false);
}

bool readGuarded(const QString& fileName, QDomDocument& document, const XmlLimits& limits) {
  document.clear();
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly) || file.size() > limits.bytes)
    return false;
  return parseGuarded(file.read(limits.bytes + 1LL), document, limits);
}

std::optional<QDomDocument> parseStrictly(const QByteArray& bytes, XmlLimits limits) {
  limits.allowsDeclarations = false;
  if (bytes.size() > limits.bytes)
    return std::nullopt;
  const QString text = QString::fromUtf8(bytes);
  if (!keepsLimits(text, limits))
    return std::nullopt;
  return TreeBuilder(text).build();
}

} // namespace TVR
