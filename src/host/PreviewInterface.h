#pragma once

#include "host/PageProperty.h"

#include <QColor>
#include <QPointF>
#include <QPolygonF>
#include <QString>
#include <QVector>
#include <QtPlugin>

#include <array>
#include <memory>
#include <vector>

namespace Sketra_lib {

/// A line of one level, as an isoline of a grid item has it.
struct PreviewLine {
  int dataSet = Property::Temperature; ///< a Property::DataSet
  double level = 0;
  QPolygonF points;    ///< [map units]
  QVector<int> breaks; ///< indices of the points at which its pieces end
  QString legend;
  QColor colour;
  bool isDashed = false;
  bool hasLabels = true;
};

/// Results that are no part of a page, on cells of a map as a grid item has them.
struct ResultPreview {
  std::vector<QPointF> nodes; ///< [map units]
  std::vector<std::array<int, 4>> cells;
  std::vector<QPointF> centres;
  std::vector<double> drawdowns;    ///< by cell [m]
  std::vector<double> temperatures; ///< changes by cell [K]
  std::vector<PreviewLine> lines;
};

/// A window that can show results as a preview, and a notice: on its screen only, while its page
/// stays what it is in every other way, and is stored, printed and exported without them. A widget
/// that is a GraphicsWorkspaceWindow may be one too.
class PreviewInterface {
public:
  /// Shows results on a map, instead of those of the grid item `replaced`, of which the isotherms
  /// stay to compare, thin and dashed; 0 for no item. Without results the page shows its own.
  /// `mark` stands in the map as rich text. Replaces what was shown before.
  virtual void showPreview(int map, int replaced, std::shared_ptr<const ResultPreview> results,
                           const QString& mark) = 0;
  /// Shows the page as it is.
  virtual void endPreview() = 0;
  /// Writes a notice, in rich text, on a map that shows no preview; an empty one for none. It stays
  /// when the page is replaced. `inFull` is plain text for screen readers.
  virtual void showNotice(int map, const QString& notice, const QString& inFull) = 0;

protected:
  ~PreviewInterface() = default;
};

} // namespace Sketra_lib

#define SKETRA_PREVIEW_IID "venlor.BrenvikApplication.Sketralib.Preview/1.0"
Q_DECLARE_INTERFACE(Sketra_lib::PreviewInterface, SKETRA_PREVIEW_IID)
