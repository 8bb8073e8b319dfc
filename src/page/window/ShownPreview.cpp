#include "page/window/ShownPreview.h"

#include "page/model/Canvas.h"
#include "page/painting/PageText.h"

#include <QPainter>

#include <utility>

namespace TVR::Page {

using Sketra_lib::PreviewLine;
using Sketra_lib::ResultPreview;
using Sketra_lib::Property::Drawdowns;
using Sketra_lib::Property::Temperature;

namespace {

constexpr double formerWidth = 0.1; ///< of the line of a former isotherm [mm]
constexpr double markDistance = 2;  ///< of the mark from the edge of the map [mm]
constexpr double markWidth = 90;    ///< at most [mm]
constexpr double markHeights[] = {6.5, 10.5, 14.5, 22.5}; ///< the least that holds the text [mm]
const QColor markColour(0xff, 0xf4, 0xce);

std::unique_ptr<IsolineItem> isolineOf(const PreviewLine& line) {
  auto item = std::make_unique<IsolineItem>(0);
  item->dataSet = line.dataSet;
  item->line.points = line.points;
  item->line.breaks = line.breaks;
  item->line.level = line.level;
  item->legendText = line.legend;
  item->legendFont = QFont("Arial", 11);
  item->labelsVisible = line.hasLabels;
  item->pen.setColor(line.colour);
  if (line.isDashed)
    item->pen.setStyle(Qt::DashLine);
  return item;
}

std::unique_ptr<GridDataItem> gridOf(const ResultPreview& results) {
  auto grid = std::make_unique<GridDataItem>(0);
  grid->mesh.nodes = results.nodes;
  grid->mesh.cells = results.cells;
  grid->mesh.centres = results.centres;
  grid->sets[Drawdowns].values = results.drawdowns;
  grid->sets[Temperature].values = results.temperatures;
  for (const PreviewLine& line : results.lines) {
    grid->children.push_back(isolineOf(line));
    grid->children.back()->parent = grid.get();
  }
  return grid;
}

} // namespace

ShownPreview::ShownPreview() = default;

ShownPreview::~ShownPreview() = default;

void ShownPreview::show(int map, int replaced, const std::shared_ptr<const ResultPreview>& results,
                        const QString& mark) {
  map_ = map;
  replaced_ = replaced;
  grid_ = results ? gridOf(*results) : nullptr;
  mark_ = mark;
}

void ShownPreview::end() {
  map_ = 0;
  grid_.reset();
  mark_.clear();
}

void ShownPreview::setNotice(int map, const QString& notice) {
  mapOfNotice_ = map;
  notice_ = notice;
}

void ShownPreview::paintMark(QPainter& painter, const Canvas& canvas) const {
  const QString& text = mark_.isEmpty() ? notice_ : mark_;
  const auto* map = canvas.item<PlotItem>(mark_.isEmpty() ? mapOfNotice_ : map_);
  if (!map || !map->visible || text.isEmpty())
    return;
  const QRectF area = map->area().adjusted(markDistance, markDistance, -markDistance, 0);
  TextItem mark(0);
  mark.brush = markColour;
  mark.html = QStringLiteral("<center>%1</center>").arg(text);
  for (const double height : markHeights) {
    mark.size = QSizeF(markWidth, height).boundedTo(area.size());
    if (textItemScale(mark) >= 1)
      break;
  }
  mark.position = {area.center().x() - mark.size.width() / 2, area.top()};
  paintTextItem(painter, mark, mark.box());
}

/// The grid that a preview replaces, drawn for comparison.
class LaidPreview::Former {
public:
  explicit Former(GridDataItem& grid) : grid_(grid) {
    grid_.sets.swap(sets_);
    grid_.children.swap(children_);
    for (const auto& child : children_) {
      const auto* line = dynamic_cast<const IsolineItem*>(child.get());
      if (line && line->dataSet == Temperature && line->visible)
        addThinLine(*line);
    }
  }
  ~Former() {
    grid_.children.swap(children_);
    grid_.sets.swap(sets_);
  }
  Former(const Former&) = delete;
  Former& operator=(const Former&) = delete;

private:
  void addThinLine(const IsolineItem& line) {
    auto thin = std::make_unique<IsolineItem>(0);
    thin->parent = &grid_;
    thin->line = line.line;
    thin->pen = line.pen;
    thin->pen.setWidthF(formerWidth);
    thin->pen.setStyle(Qt::DashLine);
    thin->labelsVisible = false;
    thin->inLegend = false;
    grid_.children.push_back(std::move(thin));
  }

  GridDataItem& grid_;
  decltype(GridDataItem::sets) sets_; ///< without values, whose colours would hide the preview's
  decltype(GridDataItem::children) children_;
};

LaidPreview::LaidPreview(const Canvas& canvas, ShownPreview& preview)
    : preview_(preview), map_(preview.grid_ ? canvas.item<PlotItem>(preview.map_) : nullptr) {
  if (!map_)
    return;
  if (auto* former = canvas.item<GridDataItem>(preview.replaced_)) {
    GridDataItem& grid = *preview.grid_;
    grid.name = former->name;
    grid.inLegend = former->inLegend;
    grid.colourScale = former->colourScale;
    former_ = std::make_unique<Former>(*former);
  }
  preview_.grid_->parent = map_;
  map_->children.push_back(std::move(preview_.grid_));
}

LaidPreview::~LaidPreview() {
  if (!map_)
    return;
  preview_.grid_.reset(static_cast<GridDataItem*>(map_->children.back().release()));
  map_->children.pop_back();
}

} // namespace TVR::Page
