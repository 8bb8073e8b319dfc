#include "propertybrowser/QtBrowserItem.h"

#include <algorithm>

QtBrowserItem::QtBrowserItem(QtProperty* property, QtBrowserItem* parent)
    : property_(property), parent_(parent) {}

QtBrowserItem* QtBrowserItem::parent() const {
  return parent_ && parent_->property_ ? parent_ : nullptr;
}

QList<QtBrowserItem*> QtBrowserItem::children() const {
  QList<QtBrowserItem*> items;
  for (const auto& child : children_)
    items.append(child.get());
  return items;
}

int QtBrowserItem::row() const {
  const auto& all = parent_->children_;
  const auto here =
      std::find_if(all.begin(), all.end(), [this](const auto& item) { return item.get() == this; });
  return int(here - all.begin());
}
