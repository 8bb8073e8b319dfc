#pragma once

class QDomElement;
class QString;

namespace TVR::Page {

/// The text of the element itself, without that of elements in it.
QString directText(const QDomElement& element);

/// Takes that text out of the element; elements and comments in it stay.
void removeText(QDomElement& element);

} // namespace TVR::Page
