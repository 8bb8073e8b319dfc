#pragma once

#include "page/model/Canvas.h"
#include "page/model/Items.h"

#include <QString>
#include <QStringList>

#include <vector>

/// All items of a kind, wherever they lie.
template <typename Kind>
std::vector<const Kind*> itemsOf(const std::vector<std::unique_ptr<TVR::Page::Item>>& items) {
  std::vector<const Kind*> found;
  for (const auto& item : items) {
    if (const auto* one = dynamic_cast<const Kind*>(item.get()))
      found.push_back(one);
    for (const Kind* inner : itemsOf<Kind>(item->children))
      found.push_back(inner);
  }
  return found;
}

/// Every text that a page shows: those of its text items, axes and legends, and beside points.
inline QStringList shownTexts(const TVR::Page::Canvas& canvas) {
  using namespace TVR::Page;
  QStringList texts;
  for (const TextItem* text : itemsOf<TextItem>(canvas.items()))
    texts << text->html;
  for (const PlotItem* plot : itemsOf<PlotItem>(canvas.items()))
    texts << plot->x.description << plot->y.description << plot->legendText;
  for (const GridDataItem* grid : itemsOf<GridDataItem>(canvas.items()))
    texts << grid->title;
  for (const IsolineItem* line : itemsOf<IsolineItem>(canvas.items()))
    texts << line->legendText << line->labelText;
  for (const CurveItem* curve : itemsOf<CurveItem>(canvas.items()))
    for (const CurveItem::Mark& mark : curve->marks)
      texts << mark.text << mark.legend;
  texts.removeAll({});
  return texts;
}
