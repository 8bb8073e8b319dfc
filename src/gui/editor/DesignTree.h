#pragma once

#include "gui/editor/EditorRows.h"
#include "gui/editor/PropertyEdits.h"
#include "propertybrowser/QtTreePropertyBrowser.h"
#include "propertybrowser/QtVariantPropertyManager.h"

#include <QObject>

#include <map>
#include <vector>

namespace TVR::GUI {

/// The rows of the design in a tree: each a property that carries the id of its parameter as data.
/// What is typed into them is marked as modified, and nothing of it is written anywhere.
class DesignTree : public QObject {
  Q_OBJECT

public:
  /// What is to become of typed values where a project is shown anew.
  enum class Typed { Discarded, Kept };

  /// Makes the rows of an empty project. `parent` owns the widget too.
  explicit DesignTree(QWidget* parent);

  QtTreePropertyBrowser* browser() const { return browser_; }
  QtVariantPropertyManager* manager() const { return manager_; }
  /// The properties by the parameter that each shows now, groups included.
  const std::map<int, QtProperty*>& propertyOfId() const { return propertyOfId_; }
  /// The parameter that a property shows.
  static int idOf(const QtProperty* property) { return property->data().toInt(); }

  /// Shows the values of a project, and hides the rows that it has no use for. A typed value that
  /// is kept counts as typed until the project has it too.
  void show(const ProjectReader& project, Typed typed);
  /// Marks the values that a project can't have, or that deserve a second look, with the reason.
  void remark(const ProjectReader& project);
  /// What rules have made of rows that show something else and were not typed.
  struct Consequence {
    QtProperty* property;
    QString text; ///< of the new value
  };
  std::vector<Consequence> consequences(const ProjectReader& project) const;
  /// Whether values can be typed; results never can.
  void setEditable(bool editable);
  /// The modified values, in the order of their parameters.
  PropertyEdits edits() const;
  /// Sets names and units in the language of the moment.
  void retranslate();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  struct Row {
    const EditorRow* row;
    QtProperty* property;
  };

  void build();
  void spanGroups(const QModelIndex& above);
  static void setName(const Row& entry);
  static void setAttributes(const EditorRow& row, QtProperty* property,
                            QtVariantPropertyManager& manager);
  static QString textOf(const EditorRow& row, const QVariant& value);
  void file(const ProjectReader& project);
  void showValue(const Row& entry, const ProjectReader& project, Typed typed);

  QtTreePropertyBrowser* browser_;
  QtVariantPropertyManager* manager_;
  std::vector<Row> rows_;
  std::map<int, QtProperty*> propertyOfId_;
};

} // namespace TVR::GUI
