#pragma once

#include "host/PreviewInterface.h"

#include <QString>

#include <memory>

class QPainter;

namespace TVR::Page {

class Canvas;
struct GridDataItem;
struct PlotItem;

/// A preview of results beside a page, or else a notice: what is shown in a window, and nowhere
/// else.
class ShownPreview {
public:
  ShownPreview();
  ~ShownPreview();

  /// See Sketra_lib::PreviewInterface.
  void show(int map, int replaced, const std::shared_ptr<const Sketra_lib::ResultPreview>& results,
            const QString& mark);
  void end();
  void setNotice(int map, const QString& notice);

  /// Its results as a grid; null without any.
  const GridDataItem* grid() const { return grid_.get(); }
  /// Rich text; empty while there is no preview.
  const QString& mark() const { return mark_; }

  /// Rich text; empty without a notice.
  const QString& notice() const { return notice_; }

  /// Writes the mark, or else the notice, on a page, in [mm], whose map is there and visible.
  void paintMark(QPainter& painter, const Canvas& canvas) const;

private:
  friend class LaidPreview;

  int map_ = 0; ///< the id of a plot; 0 while there is no preview
  int replaced_ = 0;
  std::unique_ptr<GridDataItem> grid_; ///< null without results, and while it lies on a page
  QString mark_;
  int mapOfNotice_ = 0;
  QString notice_;
};

/// Puts a preview on a page for the life of the object, within which the page is only drawn: its
/// grid lies on the map, and the isotherms of the grid that it replaces are thin and dashed.
class LaidPreview {
public:
  LaidPreview(const Canvas& canvas, ShownPreview& preview);
  ~LaidPreview();
  LaidPreview(const LaidPreview&) = delete;
  LaidPreview& operator=(const LaidPreview&) = delete;

private:
  class Former;

  ShownPreview& preview_;
  PlotItem* const map_; ///< null if nothing is laid
  std::unique_ptr<Former> former_;
};

} // namespace TVR::Page
