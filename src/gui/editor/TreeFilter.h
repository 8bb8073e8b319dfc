#pragma once

#include "gui/editor/DefaultDesign.h"

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QtProperty;

namespace TVR::GUI {

class DesignTree;
class ValueStory;

/// The line above the design tree that leaves of its rows only those with what was typed in their
/// name, key, unit or tool tip, and only those that differ from the defaults.
class TreeFilter : public QWidget {
  Q_OBJECT

public:
  /// All outlive it.
  TreeFilter(DesignTree& tree, const DefaultDesign& defaults, const ValueStory& story,
             QWidget* parent = nullptr);

  void retranslate();
  /// Puts its fields between two widgets on the way of the Tab key.
  void setTabOrderBetween(QWidget* before, QWidget* behind);

private:
  void apply();
  bool isChanged(const QtProperty& property) const;
  bool isFound(const QtProperty& property) const;

  DesignTree& tree_;
  const DefaultDesign& defaults_;
  const ValueStory& story_;
  QLineEdit* search_;
  QCheckBox* onlyChanged_;
};

} // namespace TVR::GUI
