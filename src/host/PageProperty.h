#pragma once

/// The numbers of the page items' properties, as GraphicsWorkspaceWindow::setItemProperty and
/// itemProperty take them. Lengths on the page are in [mm] unless a line says otherwise; a boolean
/// property takes a bool. Where a number holds on some kinds of items only, its line names them.
namespace Sketra_lib::Property {

enum Id {
  Name = 2,              ///< QString
  Title = 4,             ///< grid: QString
  Brush = 5,             ///< curve, plot: QBrush
  FramePen = 6,          ///< text, picture: QPen or Qt::PenStyle; Qt::NoPen removes the frame
  LineColour = 10,       ///< curve, isoline: QColor
  LineStyle = 11,        ///< curve, isoline: Qt::PenStyle as a number
  InMapCoordinates = 13, ///< picture: 1 if position and size are the map's
  InLegend = 17,         ///< isoline, grid, curve: bool
  Position = 22,         ///< QPointF; of a picture on the map its top left corner there
  Visible = 26,          ///< bool; a curve that is not visible still shows its symbols
  Size = 29,             ///< QSize or QSizeF
  TextAnchor = 31,       ///< text: 0 for the top of its box
  MarginTop = 33,        ///< plot, as are the three that follow
  MarginLeft = 34,
  MarginRight = 35,
  MarginBottom = 36,
  TextRotation = 37,      ///< text: [degrees]
  GridPen = 44,           ///< plot: QVariantMap with "QPen" (QPen) and "WidthMM" (double)
  ClipsChildren = 46,     ///< plot: bool
  LegendText = 47,        ///< plot, isoline: QVariantMap with "Text" (QString) and "Font" (QFont)
  UniformScale = 50,      ///< plot: bool, keeps the aspect of the map
  XAutoScale = 51,        ///< plot: bool, the range grows with its contents
  YAutoScale = 52,        ///< plot: the same
  XWholeTicks = 69,       ///< plot: 1 for ticks at whole numbers only
  YWholeTicks = 70,       ///< plot: the same
  XMinimum = 78,          ///< plot, [map units]
  XMaximum = 79,          ///< plot, [map units]
  XNumberFormat = 82,     ///< plot: "%1f" for plain decimals
  YMinimum = 83,          ///< plot, [map units]
  YMaximum = 84,          ///< plot, [map units]
  YNumberFormat = 87,     ///< plot: "%1f" for plain decimals
  CurveStyle = 103,       ///< curve: a CurveStyleValue
  Symbol = 105,           ///< curve: QVariantMap with "Width", "Height" [0.1 mm] and "Type"
  Points = 106,           ///< curve, isoline: QPolygonF [map units]
  Breaks = 107,           ///< isoline: list of the point indices at which its pieces end
  ShownLevel = 108,       ///< isoline: double, the number that its label shows
  LabelDensity = 111,     ///< isoline: int, mean distance between two labels [cm]
  LabelsVisible = 116,    ///< isoline: bool; one that was given a ShownLevel always shows it
  PointMoved = 117,       ///< curve: the number of the notification that a point was dragged
  Html = 118,             ///< text: QString
  TextColour = 120,       ///< text: QColor
  TextMargin = 127,       ///< text, legend: double, distance of the contents from the frame [cm]
  WrapsText = 129,        ///< text: 1 if lines break at the width of the box
  Pixmap = 130,           ///< picture: QPixmap
  PictureFile = 131,      ///< picture: QString
  ListsItems = 132,       ///< legend: 1 makes it read the items anew
  LegendColumns = 136,    ///< legend: int
  Levels = 140,           ///< grid: QVariantList, of the selected data set; numbers or texts
  IsolineIds = 141,       ///< grid: QVariantList of int, of the selected data set
  ElementKind = 142,      ///< grid: "element"
  Level = 143,            ///< isoline: double
  ShowsMesh = 144,        ///< grid: bool
  ShowsNodes = 145,       ///< grid: bool
  ValueCount = 150,       ///< grid: number of values of the selected data set
  SelectedSet = 151,      ///< grid: a DataSet
  Values = 152,           ///< grid: QVariantList of double, of the selected data set
  Value = 153,            ///< grid: list of element index, x, y, value
  SetTitle = 154,         ///< grid: title of the selected data set
  SetLevelsByRange = 155, ///< grid: bool, the levels of the selected data set follow its range
  NodeCount = 156,        ///< grid
  Node = 158,             ///< grid: list of index, x, y
  CellCount = 160,        ///< grid
  CellShape = 164,        ///< grid: QSize(cells, 4)
  Cell = 166,             ///< grid: list of cell index and its four node indices
  ColourScaleEntry = 170, ///< grid: list of index, value, colour
  MeshColour = 172,       ///< grid: QColor
  XAxisHidden = 178,      ///< plot: 1 for a plot that lies over another one
  YAxisOnRight = 181,     ///< plot: 1
  /// curve: a QVariantList with a QVariantMap for each point: "Text" (QString) is written beside
  /// it, "Symbol" (SymbolValue) is drawn instead of the curve's, and "Legend" (QString) says in the
  /// legend what the symbol stands for
  PointMarks = 201,
};

/// Values of SelectedSet. Drawdowns are changes of the head [m], negative where it falls.
enum DataSet { StartValues = 0, Drawdowns = 1, Temperature = 2, DataSetCount = 3 };

/// What of a data set counts as a change: less is the noise of a solver ([m] of drawdown, [K] of
/// temperature).
inline constexpr double leastChange = 0.01;

/// Values of "Type" in Symbol and of "Symbol" in PointMarks.
enum SymbolValue {
  NoSymbol,
  Square,
  Circle,
  Triangle,
  Diamond,
  Cross,
  WithdrawalWell,  ///< a filled circle with an arrow up
  InjectionWell,   ///< an empty circle with an arrow down
  AlternatingWell, ///< an empty circle with both
  SymbolCount
};

/// Values of CurveStyle.
enum CurveStyleValue { Lines = 0, Steps = 1, SymbolsOnly = 4 };

} // namespace Sketra_lib::Property
