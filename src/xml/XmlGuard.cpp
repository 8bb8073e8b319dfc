#include "xml/XmlGuard.h"

#include <QDomElement>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>

namespace TVR {

namespace {

/// Walks over the marks of an XML text without building anything. It need not tell whether the text
/// is well-formed: it sees the marks of every text that is, and a parser gives up at the first
/// place where the two could differ.
class XmlGuard {
public:
  XmlGuard(const QString& text, const XmlLimits& limits) : text_(text), limits_(limits) {}

  bool holds() {
    while (holds_ && skipText())
      skipMark();
    return holds_ && references_ * longestEntity_ <= limits_.expandedLength;
  }

private:
  bool startsWith(QLatin1String token) const {
    return text_.midRef(position_, token.size()) == token;
  }

  /// Goes behind the next `token`, or to the end if there is none.
  void skipBehind(QLatin1String token, int from) {
    const int found = text_.indexOf(token, from);
    position_ = found < 0 ? text_.size() : found + token.size();
  }

  /// Goes to the next mark. False if there is none.
  bool skipText() {
    for (; position_ < text_.size(); ++position_) {
      if (text_[position_] == '<')
        return true;
      countReference();
    }
    return false;
  }

  /// Counts a reference to an entity that is not among the five that each document has.
  void countReference() {
    if (text_[position_] != '&' || text_.midRef(position_ + 1, 1) == QLatin1String("#"))
      return;
    static constexpr std::array<const char*, 5> known = {"&amp;", "&lt;", "&gt;", "&quot;",
                                                         "&apos;"};
    if (std::none_of(known.begin(), known.end(),
                     [this](const char* name) { return startsWith(QLatin1String(name)); }))
      ++references_;
  }

  void skipMark() {
    if (++marks_ > limits_.marks)
      holds_ = false;
    else if (startsWith(QLatin1String("<!--")))
      skipBehind(QLatin1String("-->"), position_ + 4);
    else if (startsWith(QLatin1String("<![CDATA[")))
      skipBehind(QLatin1String("]]>"), position_ + 9);
    else if (startsWith(QLatin1String("<?")))
      skipBehind(QLatin1String("?>"), position_ + 2);
    else if (startsWith(QLatin1String("<!")))
      skipDocumentType();
    else if (startsWith(QLatin1String("</")))
      skipEndTag();
    else
      skipStartTag();
  }

  void skipEndTag() {
    --depth_;
    skipBehind(QLatin1String(">"), position_);
  }

  void skipStartTag() {
    if (++elements_ > limits_.elements || depth_ >= limits_.depth) {
      holds_ = false;
      return;
    }
    int attributes = 0;
    QChar quote;
    for (++position_; position_ < text_.size(); ++position_) {
      const QChar c = text_[position_];
      if (!quote.isNull()) {
        if (c == quote)
          quote = QChar();
        else
          countReference();
      } else if (c == '"' || c == '\'') {
        quote = c;
        if (++attributes_ > limits_.attributes || ++attributes > limits_.attributesOfElement) {
          holds_ = false;
          return;
        }
      } else if (c == '>') {
        break;
      }
    }
    const bool isEmpty = position_ > 0 && text_[position_ - 1] == '/';
    if (!isEmpty)
      ++depth_;
    ++position_;
  }

  /// The declaration may hold declarations in brackets, of which those of entities matter.
  void skipDocumentType() {
    const int end = std::min(position_ + limits_.typeLength, text_.size());
    int open = 0;
    bool declaresEntity = false;
    for (; position_ < end; ++position_) {
      const QChar c = text_[position_];
      if (startsWith(QLatin1String("<!--")))
        skipBehind(QLatin1String("-->"), position_ + 4), --position_;
      else if (startsWith(QLatin1String("<?")))
        skipBehind(QLatin1String("?>"), position_ + 2), --position_;
      else if (c == '"' || c == '\'')
        skipLiteral(declaresEntity);
      else if (c == '[' && !limits_.allowsDeclarations) {
        holds_ = false;
        return;
      } else if (c == '%') // an entity of the declaration itself could hide another one
        holds_ = false;
      else if (c == '<') {
        declaresEntity = startsWith(QLatin1String("<!ENTITY"));
        ++open;
      } else if (c == '>' && --open == 0) {
        ++position_;
        return;
      }
    }
    holds_ = false;
  }

  /// Goes to the closing quote of a text in quotes.
  void skipLiteral(bool isEntity) {
    const int first = position_ + 1;
    const int last = text_.indexOf(text_[position_], first);
    const QStringRef value = text_.midRef(first, last < 0 ? -1 : last - first);
    position_ = last < 0 ? text_.size() : last;
    if (!isEntity)
      return;
    if (value.size() > limits_.entityLength || value.contains('&') || value.contains('<'))
      holds_ = false;
    longestEntity_ = std::max<qint64>(longestEntity_, value.size());
  }

  const QString& text_;
  const XmlLimits limits_;
  int position_ = 0;
  int depth_ = 0;
  int marks_ = 0;
  int elements_ = 0;
  int attributes_ = 0;
  qint64 references_ = 0;
  qint64 longestEntity_ = 0;
  bool holds_ = true;
};

} // namespace

bool keepsLimits(const QString& text, const XmlLimits& limits) {
  return XmlGuard(text, limits).holds();
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

} // namespace TVR
