#pragma once

#include "contour/GridMesh.h"
#include "contour/Isoline.h"
#include "host/DataObserver.h"
#include "host/PageProperty.h"
#include "page/model/ColourScale.h"

#include <QBrush>
#include <QColor>
#include <QDomElement>
#include <QFont>
#include <QImage>
#include <QMap>
#include <QMarginsF>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QTransform>
#include <QVariant>

#include <array>
#include <memory>
#include <optional>
#include <vector>

/// The page of a project: a tree of items on a sheet of paper.
///
/// Lengths on the page are in [mm], with the origin at the top left corner of the sheet and y
/// downwards; what lies in a plot is in the plot's own units (metres of a map, say), with y
/// upwards.
namespace TVR::Page {

enum class ItemKind { Text, Plot, Legend, Picture, Curve, GridData, Isoline, Other };

/// What every item has. Plain data: whoever changes it through Canvas is heard by the observers.
struct Item : DATA::DataObject {
  Item(ItemKind itemKind, int itemId) : kind(itemKind), id(itemId) {}

  const ItemKind kind;
  const int id;                                ///< above 0, never used twice on a page
  Item* parent = nullptr;                      ///< null for an item that lies directly on the sheet
  std::vector<std::unique_ptr<Item>> children; ///< in drawing order, the first lowest

  QString name;
  QPointF position;           ///< top left corner [mm]
  QSizeF size = QSizeF(0, 0); ///< [mm]
  bool visible = true;
  QPen pen = QPen(Qt::black, 0.1); ///< frame of a box, line of a curve; widths in [mm]
  QBrush brush = Qt::NoBrush;

  /// Properties that this kind has no field for, as they were set.
  QMap<int, QVariant> otherProperties;
  /// The element that the item was read from; what is not known here is written back from it.
  QDomElement stored;

  QRectF box() const { return {position, size}; }
};

struct TextItem final : Item {
  static constexpr ItemKind ownKind = ItemKind::Text;
  explicit TextItem(int itemId) : Item(ownKind, itemId) {}
  QString html;
  QColor colour = Qt::black;
  QFont font = QFont("Arial", 9);
  double margin = 1; ///< distance of the text from the box [mm]
  double rotation = 0;
  bool wraps = true;
};

/// One axis of a plot.
struct Axis {
  double minimum = 0;
  double maximum = 1;
  double step = 0; ///< distance of the ticks; 0 for one that suits the range
  int subTicks = 4;
  bool automatic = true; ///< the range grows with its contents
  bool wholeTicks = false;
  bool hidden = false;
  bool opposite = false; ///< at the right, or at the top
  QString numberFormat = "%1f";
  QString description;
  /// Ends that growth chose, not the one who set the range: these get more room where it runs out.
  std::optional<double> grownMinimum;
  std::optional<double> grownMaximum;
};

struct PlotItem final : Item {
  static constexpr ItemKind ownKind = ItemKind::Plot;
  explicit PlotItem(int itemId) : Item(ownKind, itemId) {}
  QMarginsF margins; ///< between the box and the plotting area [mm]
  Axis x;
  Axis y;
  bool uniformScale = false;
  bool clipsChildren = true;
  QPen gridPen = QPen(Qt::lightGray, 0.05, Qt::DotLine);
  QPen axisPen = QPen(Qt::black, 0.15);
  QFont font = QFont("Arial", 8); ///< of ticks and descriptions
  QString legendText;             ///< heading of its entries in a legend
  QFont legendFont = QFont("Arial", 11, QFont::Bold);

  /// Where the contents are drawn [mm].
  QRectF area() const { return box().marginsRemoved(margins); }
  /// Length of a unit on the page, along x and along y [mm/unit]; alike with a uniform scale, for
  /// which the tighter of the two counts. 0 for an empty range.
  QSizeF scale() const;
  /// From the plot's units to the page and back. The lower left corner of the area is the minimum
  /// of both axes.
  QPointF toPage(const QPointF& point) const;
  QPointF fromPage(const QPointF& point) const;
  /// toPage() as a transform.
  QTransform pageTransform() const;
  /// Whether it is a map: it has one scale, and its y axis points north.
  bool isMap() const { return uniformScale; }
};

struct LegendItem final : Item {
  static constexpr ItemKind ownKind = ItemKind::Legend;
  explicit LegendItem(int itemId) : Item(ownKind, itemId) {}
  int columns = 1;
  double spacing = 1;     ///< between two entries [mm]
  double symbolWidth = 8; ///< [mm]
  double margin = 1;      ///< distance of the entries from the box [mm]
  QFont font = QFont("Arial", 9);
};

/// A picture on the sheet, or in a plot: then position and size are in the plot's units, the
/// position being the top left corner.
struct PictureItem final : Item {
  static constexpr ItemKind ownKind = ItemKind::Picture;
  explicit PictureItem(int itemId) : Item(ownKind, itemId) {}
  QImage image;
  QString file; ///< where the image came from; empty if it has no file
  bool inMapCoordinates = false;
};

/// A polyline or step line in a plot, with a symbol at each point. If it is not visible its symbols
/// still are.
struct CurveItem final : Item {
  static constexpr ItemKind ownKind = ItemKind::Curve;
  using enum Sketra_lib::Property::SymbolValue;
  /// What one point is, where that differs from point to point.
  struct Mark {
    QString text; ///< beside the point
    int symbol = NoSymbol;
    QString legend; ///< what the symbol stands for
  };
  explicit CurveItem(int itemId) : Item(ownKind, itemId) { pen.setWidthF(0.3); }
  QPolygonF points; ///< in the plot's units
  int style = Sketra_lib::Property::Lines;
  QSizeF symbolSize = QSizeF(0, 0); ///< [0.1 mm]
  int symbol = NoSymbol;
  bool inLegend = true;
  std::vector<Mark> marks; ///< by point; those without one look as the curve says

  int symbolOf(int point) const;
  double symbolRadius() const; ///< half of the longer side of its symbols [mm]
  /// Texts and meanings of more points than this are not shown: nobody could read them.
  static constexpr int mostMarksShown = 500;
};

/// One level of a data set of the grid item that it is a child of.
struct IsolineItem final : Item {
  static constexpr ItemKind ownKind = ItemKind::Isoline;
  explicit IsolineItem(int itemId) : Item(ownKind, itemId) { pen.setWidthF(0.2); }
  int dataSet = Sketra_lib::Property::Drawdowns;
  Contour::Isoline line;            ///< in the plot's units
  std::optional<double> shownLevel; ///< what its labels show instead of the level
  QString labelText;                ///< what they show instead of any number; not kept in files
  int labelDensity = 10;            ///< mean distance between two labels [cm]
  bool labelsVisible = true;
  bool inLegend = true;
  QString legendText;
  QFont legendFont = QFont("Arial", 9);
};

/// A mesh of quadrilaterals in a plot, with up to three data sets of one value per cell.
struct GridDataItem final : Item {
  static constexpr ItemKind ownKind = ItemKind::GridData;
  struct DataSet {
    QString title;
    std::vector<double> values; ///< by cell
    QVariantList levels;        ///< as they were set: numbers or texts
    std::vector<int> isolines;  ///< ids of the children, one per level
    bool levelsByRange = false;
    bool linesAreStale = false; ///< the isolines were traced for other values or levels

    /// Whether any value is a change: above leastChange in size.
    bool hasChange() const;
  };
  explicit GridDataItem(int itemId) : Item(ownKind, itemId) {}
  Contour::GridMesh mesh;
  std::array<DataSet, Sketra_lib::Property::DataSetCount> sets;
  int selectedSet = Sketra_lib::Property::StartValues;
  std::vector<ColourScale::Entry>
      colourScale; ///< fewer than two entries stand for the built-in scale
  QString title;
  QString elementKind;
  QString unit; ///< of the values, if it is not that of their quantity; not kept in files
  QColor meshColour = Qt::darkGray;
  bool showsMesh = false;
  bool showsNodes = false;
  bool inLegend = false;
  bool isImported = false; ///< the result of another project, laid on the page to compare

  /// The data set whose values colour the cells: the temperature where it has a change and more
  /// than one value, else the drawdown where that has, else null.
  const DataSet* colouredSet() const;
  /// Its number, a Sketra_lib::Property::DataSet; StartValues if there is none.
  int colouredQuantity() const;
  /// The unit of those values.
  QString colouredUnit() const;
  /// Whether there are temperatures, and none of them is a change.
  bool keepsItsTemperature() const;
};

/// The unit of the values of a data set (Sketra_lib::Property::DataSet).
QString unitOfDataSet(int dataSet);

/// The plot that an item lies directly in; null for an item elsewhere.
const PlotItem* plotOf(const Item& item);

} // namespace TVR::Page
