#pragma once

#include <Qt>

#include <memory>

class QPointF;

namespace TVR::Page {

class Canvas;
struct Grip;
struct SheetView;

/// Something that follows the mouse while a button is held. It names items by their ids: when its
/// item goes away, it has no effect any more.
class Drag {
public:
  virtual ~Drag() = default;
  /// The mouse is at this place of the window [pixel].
  virtual void moveTo(const QPointF& pixel, Qt::KeyboardModifiers modifiers) = 0;
  /// Puts back what was dragged.
  virtual void undo() = 0;
  virtual Qt::CursorShape cursor() const = 0;
  /// Whether it moves something on the page, and not the page in its window.
  virtual bool changesPage() const { return true; }
  /// The item that moves on the page while all others stay; 0 if there is none such.
  virtual int movingItem() const { return 0; }
};

/// The drag of what was taken hold of at `pixel`; null for the grip Nothing. Canvas and view
/// outlive the drag, and the view may change meanwhile.
std::unique_ptr<Drag> startDrag(Canvas& canvas, const SheetView& view, const Grip& grip,
                                const QPointF& pixel);

/// The drag of the whole sheet in its view.
std::unique_ptr<Drag> startSheetDrag(SheetView& view, const QPointF& pixel);

} // namespace TVR::Page
