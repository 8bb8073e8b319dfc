#pragma once

#include <QString>
#include <QVariant>

#include <set>
#include <span>

namespace TVR {
class ProjectReader;
}

namespace TVR::GUI {

/// How a row of the design tree takes its value.
enum class EditorKind { Group, Text, Truth, Count, Number };

/// Where a value in the tree differs from the stored one.
enum class EditorForm {
  Stored,     ///< nowhere
  ShownUnit,  ///< it is in the unit in which forms show the parameter
  Dispersion, ///< a length in the store, a truth value in the tree
};

/// A row of the design tree: the parameter whose value it shows (Parameter::Id), the group that it
/// stands in, and what may be typed, in the unit of the tree. Forms and checks of files have ranges
/// of their own (ParameterRow::range).
struct EditorRow {
  int id;
  int group; ///< 0 at the top
  EditorKind kind;
  double least = 0;
  double most = 0;
  double step = 0; ///< 0 for the usual one
  int decimals = 0;
  bool hasUnit = true;
  EditorForm form = EditorForm::Stored;
  int idOfHeating = 0; ///< the parameter in a project with a heat demand only; 0 for the same
  int labelId = 0;     ///< the parameter that gives the name; 0 for the same
  bool isResult = false;

  bool isNumber() const { return kind == EditorKind::Count || kind == EditorKind::Number; }
};

/// All rows, each group before what stands in it.
std::span<const EditorRow> editorRows();
/// The row that shows a parameter, in whatever kind of project; null if there is none.
const EditorRow* editorRow(int id);

/// Whether demands of heating and cooling are entered, rather than the heat demand of a building.
bool isHeatingAndCooling(const ProjectReader& project);
/// The parameter that a row shows in a project.
int shownParameter(const EditorRow& row, const ProjectReader& project);

/// The name of a row that shows parameter `id`, in the language of the moment.
QString editorLabel(const EditorRow& row, int id);
/// The text behind a number, a blank before it; empty without a unit.
QString editorUnit(const EditorRow& row);

/// The value that a row shows of a project, of the type of its kind; invalid for a group.
QVariant treeValue(const EditorRow& row, const ProjectReader& project);
/// The value to store for one in the tree.
QVariant storedValue(const EditorRow& row, const QVariant& treeValue);

/// The parameters, groups included, whose rows a project leaves no use for.
std::set<int> hiddenParameters(const ProjectReader& project);

} // namespace TVR::GUI
