#pragma once

class QByteArray;
class QDomElement;

/// The document of a page: type `GraphicWidgetExport`, root `CanvasEx`. Lengths stand there in
/// tenths of a millimetre, the size of the sheet in centimetres.
///
/// What stands in a document and is not known here (attributes, elements, types of items) is kept
/// with the item that it belongs to and written back in its place. Documents may come from
/// anywhere: numbers that are not finite, ids used twice and pictures of any size are put right or
/// left out, and a document that asks for too much (XmlGuard.h) is none.
namespace TVR::Page {

class Canvas;

/// Replaces the page by that of a document; its items keep their ids. False, and an empty page, if
/// it is none.
bool readPage(Canvas& canvas, const QByteArray& document);

/// The page as such a document. What `readPage` did not understand stands in it unchanged.
QByteArray writePage(const Canvas& canvas);

/// A new item in a plot from an `Item` element of a page's document, with its children; 0 if the
/// element is none, or there is no such plot. Its ids are new ones, and references between the
/// imported items follow them. A grid is marked as imported.
int importItem(Canvas& canvas, int plot, const QDomElement& element);

} // namespace TVR::Page
