#pragma once

#include "page/model/Canvas.h"

#include <QRectF>

#include <utility>

namespace TVR::Study {

/// Puts items on an empty sheet, one above the other, and then the sheet on a canvas.
class PageMaker {
public:
  template <typename Kind>
  Kind& add(const QRectF& box) {
    auto made = std::make_unique<Kind>(contents_.nextItemId++);
    Kind& item = *made;
    item.position = box.topLeft();
    item.size = box.size();
    contents_.items.push_back(std::move(made));
    return item;
  }

  template <typename Kind>
  Kind& addTo(Page::Item& parent) {
    auto made = std::make_unique<Kind>(contents_.nextItemId++);
    Kind& item = *made;
    item.parent = &parent;
    parent.children.push_back(std::move(made));
    return item;
  }

  /// A text of HTML without a frame.
  Page::TextItem& addText(const QRectF& box, const QString& html, double points) {
    auto& text = add<Page::TextItem>(box);
    text.pen = Qt::NoPen;
    text.html = html;
    text.font = QFont("Arial");
    text.font.setPointSizeF(points);
    return text;
  }

  void putOn(Page::Canvas& canvas) { canvas.setContents(std::move(contents_)); }

private:
  Page::PageContents contents_;
};

} // namespace TVR::Study
