#pragma once

#include "page/document/DocumentFields.h"
#include "page/model/Items.h"

#include <QByteArray>
#include <QDomDocument>
#include <QHash>

#include <memory>

namespace TVR::Page {

class Canvas;

/// Reads and writes the document of a page: type `GraphicWidgetExport`, root `CanvasEx`. Lengths
/// stand there in tenths of a millimetre, the size of the sheet in centimetres.
///
/// What stands in a document and is not known here (attributes, elements, types of items) is kept
/// with the item that it belongs to and written back in its place. Documents may come from
/// anywhere: numbers that are not finite, ids used twice and pictures of any size are put right or
/// left out, and a document that asks for too much (XmlGuard.h) is none.
class PageDocument {
public:
  /// Replaces the contents of the page. False, and an empty page, if `bytes` is no such document.
  static bool read(Canvas& canvas, const QByteArray& bytes);
  static QByteArray write(const Canvas& canvas);
  /// A new item below `parent` from an `Item` element; see Canvas::importItem.
  static int import(Canvas& canvas, Item& parent, const QDomElement& element);
};

} // namespace TVR::Page
