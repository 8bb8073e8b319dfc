#pragma once

#include "page/model/Items.h"

#include <type_traits>

/// How items stand in the page document: one description for both directions. `Fields` is
/// FieldReader, which fills the item, or FieldWriter, for which the item is constant. The order of
/// the lines is the order of the elements in a new document.
namespace TVR::Page {

constexpr int anyInteger = 1'000'000'000;

template <typename AnyItem, typename Kind>
constexpr bool isKind = std::is_same_v<std::remove_const_t<AnyItem>, Kind>;

/// Position and size: on the sheet in tenths of a millimetre, on a map in its own units.
template <typename Fields, typename AnyItem, typename Value>
void describePlace(Fields fields, AnyItem& item, Value& value) {
  if constexpr (isKind<AnyItem, PictureItem>) {
    fields.flag("InMapCoordinates", item.inMapCoordinates);
    if (item.inMapCoordinates)
      return fields.numbers(value);
  }
  fields.lengths(value);
}

template <typename Fields, typename AnyItem>
void describeMargin(Fields fields, AnyItem& item) {
  if constexpr (isKind<AnyItem, PlotItem>)
    fields.lengths(item.margins);
  else
    for (const char* side : {"Left", "Top", "Right", "Bottom"})
      if constexpr (isKind<AnyItem, TextItem> || isKind<AnyItem, LegendItem>)
        fields.length(side, item.margin);
      else
        fields.constant(side, "0");
}

/// What every item has, up to `Children`.
template <typename Fields, typename AnyItem>
void describeCommon(Fields fields, AnyItem& item) {
  fields.flag("visible", item.visible);
  for (const char* flag : {"locked", "readonly", "deleteable"})
    fields.constant(flag, "0");
  if constexpr (isKind<AnyItem, TextItem>)
    fields.number("RotationAngle", item.rotation);
  for (const char* angle : {"RotationAngle", "XCenterPoint", "YCenterPoint"})
    fields.constant(angle, "0");
  fields.child("Name").text(item.name);
  describePlace(fields.child("Position"), item, item.position);
  fields.child("UserData");
  fields.child("Pen").pen(item.pen);
  fields.child("Brush").brush(item.brush);
  describePlace(fields.child("Size"), item, item.size);
  fields.child("Offset").constant("X", "0");
  fields.child("Offset").constant("Y", "0");
  describeMargin(fields.child("Margin"), item);
  if constexpr (isKind<AnyItem, PlotItem>)
    fields.child("ClippingType").flag("Clips", item.clipsChildren);
  else
    fields.child("ClippingType");
  fields.child("WorldMatrix");
  fields.child("Children");
}

template <typename Fields, typename AnyText>
void describe(Fields fields, AnyText& item, const TextItem*) {
  fields.child("Text").text(item.html);
  fields.child("Text").colour("Color", item.colour);
  fields.child("Text").flag("Wrap", item.wraps);
  fields.child("DefaultFont").font(item.font);
}

template <typename Fields, typename AnyAxis>
void describeAxis(Fields fields, AnyAxis& axis) {
  fields.number("Min", axis.minimum);
  fields.number("Max", axis.maximum);
  fields.number("Step", axis.step);
  fields.constant("TickCount", "5");
  fields.integer("SubTickCount", axis.subTicks, 0, 100);
  fields.flag("AutoScale", axis.automatic);
  fields.flag("WholeTicks", axis.wholeTicks);
  fields.flag("Hidden", axis.hidden);
  fields.flag("Opposite", axis.opposite);
  fields.string("NumberFormat", axis.numberFormat);
  fields.string("Description", axis.description);
}

template <typename Fields, typename AnyLegend>
void describeLegendText(Fields fields, AnyLegend& item) {
  fields.string("Text", item.legendText);
  fields.font(item.legendFont);
}

template <typename Fields, typename AnyPlot>
void describe(Fields fields, AnyPlot& item, const PlotItem*) {
  fields.child("Description");
  fields.child("UniformScale").flag("Value", item.uniformScale);
  fields.child("DateTime");
  fields.child("GridPen").pen(item.gridPen);
  fields.child("SubgridPen");
  fields.child("AxisPen").pen(item.axisPen);
  fields.child("Font").font(item.font);
  describeAxis(fields.child("Axis").child("XAxis"), item.x);
  describeAxis(fields.child("Axis").child("YAxis"), item.y);
  describeLegendText(fields.child("LegendText"), item);
}

template <typename Fields, typename AnyLegend>
void describe(Fields fields, AnyLegend& item, const LegendItem*) {
  fields.child("Spacing").length("Value", item.spacing);
  fields.child("System");
  fields.child("SymbolWidth").length("Value", item.symbolWidth);
  fields.child("SymbolNumber");
  fields.child("Columns").integer("Value", item.columns, 1, anyInteger);
  fields.child("DefaultFont").font(item.font);
}

template <typename Fields, typename AnyPicture>
void describe(Fields fields, AnyPicture& item, const PictureItem*) {
  fields.child("Picture").string("File", item.file);
  fields.child("Picture").image(item.image);
}

template <typename Fields, typename AnyCurve>
void describe(Fields fields, AnyCurve& item, const CurveItem*) {
  Fields curve = fields.child("Curve");
  curve.integer("Style", item.style, -anyInteger, anyInteger);
  curve.integer("Symbol", item.symbol, Sketra_lib::Property::NoSymbol,
                Sketra_lib::Property::SymbolCount - 1);
  curve.numbers(item.symbolSize);
  curve.flag("InLegend", item.inLegend);
  fields.child("Points").list(item.points);
  std::vector<Fields> marks = fields.child("Marks").entries("Mark", item.marks);
  for (size_t index = 0; index < marks.size(); ++index) {
    marks[index].string("Text", item.marks[index].text);
    marks[index].integer("Symbol", item.marks[index].symbol, Sketra_lib::Property::NoSymbol,
                         Sketra_lib::Property::SymbolCount - 1);
    marks[index].string("Legend", item.marks[index].legend);
  }
}

template <typename Fields, typename AnyIsoline>
void describe(Fields fields, AnyIsoline& item, const IsolineItem*) {
  Fields isoline = fields.child("Isoline");
  isoline.number("Level", item.line.level);
  isoline.integer("DataSet", item.dataSet, 0, Sketra_lib::Property::DataSetCount - 1);
  isoline.number("ShownLevel", item.shownLevel);
  isoline.integer("LabelDensity", item.labelDensity, 1, anyInteger);
  isoline.flag("LabelsVisible", item.labelsVisible);
  isoline.flag("InLegend", item.inLegend);
  describeLegendText(fields.child("LegendText"), item);
  fields.child("Points").list(item.line.points);
  fields.child("Breaks").list(item.line.breaks);
}

template <typename Fields, typename AnySet>
void describeDataSet(Fields fields, AnySet& set) {
  fields.string("Title", set.title);
  fields.flag("LevelsByRange", set.levelsByRange);
  fields.child("Values").list(set.values);
  fields.child("Levels").variants(set.levels);
  fields.child("Isolines").list(set.isolines);
}

template <typename Fields, typename AnyGrid>
void describe(Fields fields, AnyGrid& item, const GridDataItem*) {
  Fields grid = fields.child("Grid");
  grid.string("Title", item.title);
  grid.string("ElementKind", item.elementKind);
  grid.colour("MeshColor", item.meshColour);
  grid.flag("ShowsMesh", item.showsMesh);
  grid.flag("ShowsNodes", item.showsNodes);
  grid.flag("InLegend", item.inLegend);
  grid.flag("Imported", item.isImported);
  grid.integer("SelectedSet", item.selectedSet, 0, Sketra_lib::Property::DataSetCount - 1);
  std::vector<Fields> entries = grid.child("ColorScale").entries("Entry", item.colourScale);
  for (size_t index = 0; index < entries.size(); ++index) {
    entries[index].number("Value", item.colourScale[index].value);
    entries[index].colour("Color", item.colourScale[index].colour);
  }
  fields.child("Nodes").list(item.mesh.nodes);
  fields.child("Cells").list(item.mesh.cells);
  fields.child("Centres").list(item.mesh.centres);
  auto set = item.sets.begin();
  for (const char* tag : {"StartValues", "Head", "Temperature"})
    describeDataSet(fields.child(tag), *set++);
}

/// An item of a type that is not known here: only what can be set on any item.
template <typename Fields, typename AnyItem>
void describeUnknown(Fields fields, AnyItem& item) {
  fields.flag("visible", item.visible);
  fields.child("Name").text(item.name);
  fields.child("Position").lengths(item.position);
  fields.child("Size").lengths(item.size);
}

} // namespace TVR::Page
