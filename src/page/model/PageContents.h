#pragma once

#include "page/model/Items.h"

#include <QColor>
#include <QDomDocument>
#include <QSizeF>

#include <memory>
#include <vector>

namespace TVR::Page {

/// A page as it is kept: its sheet and what lies on it. An empty sheet of A4, across, at first.
struct PageContents {
  QSizeF paperSize = QSizeF(297, 210); ///< [mm]
  QColor background = Qt::white;
  std::vector<std::unique_ptr<Item>> items; ///< those directly on the sheet, the lowest first
  int nextItemId = 1;                       ///< above the ids of all items that there have been
  /// The page as it was read, without its items; what is not known here is written back from it.
  QDomDocument stored;
};

} // namespace TVR::Page
