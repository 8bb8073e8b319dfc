#pragma once

#include "gui/editor/DefaultDesign.h"
#include "gui/editor/DependencyMarks.h"
#include "gui/editor/DisplayUnits.h"
#include "gui/editor/ValueStory.h"

#include <QObject>
#include <QPoint>

class QMenu;
class QtProperty;

namespace TVR::GUI {

class DesignTree;
class TreeFilter;

/// What helps to read the design tree: the line that filters it, tool tips that tell how a value
/// came about, computed values in italics, marks of what hangs together, and the menu of a row.
class TreeAids : public QObject {
  Q_OBJECT

public:
  /// Both outlive it.
  TreeAids(DesignTree& tree, const Data::Manager& store, QObject* parent = nullptr);

  /// The line above the tree, to be put into a layout.
  TreeFilter* filter() { return filter_; }
  /// Lets the tree tell where values come from.
  void setOrigins(const std::shared_ptr<const Data::ValueOrigins>& origins);
  /// The tree shows the store anew.
  void update();
  void retranslate();
  /// The menu of a row; null for a group. Whoever asks deletes it.
  QMenu* menuOf(QtProperty* property);

private:
  void showMarks();
  void showUnits();
  void showMenu(const QPoint& position);
  void addUnits(QMenu& menu, DisplayUnits::Quantity quantity, const QString& title);

  DesignTree& tree_;
  DisplayUnits units_;
  DefaultDesign defaults_;
  ValueStory story_;
  DependencyMarks marks_;
  TreeFilter* filter_;
};

} // namespace TVR::GUI
