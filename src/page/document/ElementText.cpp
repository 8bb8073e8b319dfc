#include "page/document/ElementText.h"

#include <QDomElement>
#include <QString>

namespace TVR::Page {

QString directText(const QDomElement& element) {
  QString text;
  for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling())
    if (node.isText())
      text += node.nodeValue();
  return text;
}

void removeText(QDomElement& element) {
  QDomNode node = element.firstChild();
  while (!node.isNull()) {
    const QDomNode next = node.nextSibling();
    if (node.isText())
      element.removeChild(node);
    node = next;
  }
}

} // namespace TVR::Page
