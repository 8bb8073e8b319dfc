#pragma once

#include "page/model/Items.h"

#include <memory>
#include <vector>

namespace TVR::Page {

/// Calls `action` with the items of a kind, the lowest first.
template <typename Kind, typename Action>
void forEach(const std::vector<std::unique_ptr<Item>>& items, const Action& action) {
  for (const std::unique_ptr<Item>& item : items)
    if (const auto* known = dynamic_cast<const Kind*>(item.get()))
      action(*known);
}

/// The same with the visible ones.
template <typename Kind, typename Action>
void forVisible(const std::vector<std::unique_ptr<Item>>& items, const Action& action) {
  forEach<Kind>(items, [&action](const Kind& item) {
    if (item.visible)
      action(item);
  });
}

} // namespace TVR::Page
