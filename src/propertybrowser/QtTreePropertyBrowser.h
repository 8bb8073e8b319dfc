#pragma once

#include "propertybrowser/QtBrowserItem.h"
#include "propertybrowser/QtProperty.h"

#include <QWidget>

#include <functional>
#include <map>

class PropertyDelegate;
class PropertyTreeModel;
class PropertyTreeView;
class QModelIndex;
class QTreeView;
class QtVariantEditorFactory;
class QtAbstractPropertyManager;

/// A tree of properties in two columns, names and values, of which values are edited in place: by
/// typing, F2, Enter or a double click; Tab goes on to the next value, Escape takes back what was
/// entered. The wheel moves the tree and never a value.
class QtTreePropertyBrowser : public QWidget {
  Q_OBJECT

public:
  /// Whether a search lets a property through.
  using Filter = std::function<bool(const QtProperty& property)>;

  /// More to tell of a property, as rich text.
  using ToolTips = std::function<QString(const QtProperty& property)>;

  explicit QtTreePropertyBrowser(QWidget* parent = nullptr);
  ~QtTreePropertyBrowser() override;

  /// Puts a property with all below it last at the top, with its rows expanded. What is put below
  /// it later gets its rows then. A property that is deleted loses its rows.
  QtBrowserItem* addProperty(QtProperty* property);
  /// Takes away the top-level rows of a property.
  void removeProperty(QtProperty* property);
  /// Takes away all rows. The properties stay with their managers.
  void clear();
  /// All rows of a property, top down.
  QList<QtBrowserItem*> items(const QtProperty* property) const;
  QList<QtBrowserItem*> topLevelItems() const;

  bool isExpanded(const QtBrowserItem* item) const;
  void setExpanded(QtBrowserItem* item, bool expanded);
  /// Whether the row is to be shown. It is not if its property is invisible, or the filter holds
  /// back it and all below it.
  bool isItemVisible(const QtBrowserItem* item) const;
  void setItemVisible(QtBrowserItem* item, bool visible);
  /// Shows only rows whose property passes, and what these lie in; no filter shows all.
  void setFilter(const Filter& filter);

  /// Asks for tool tips when they are to be shown. They stand behind what the property says itself.
  void setToolTips(const ToolTips& toolTips);

  void setRootIsDecorated(bool decorated);
  void setAlternatingRowColors(bool alternating);
  /// Lets the properties of `manager` be edited in the editors of `factory`, which outlives the
  /// tree.
  void setFactoryForManager(QtAbstractPropertyManager* manager, QtVariantEditorFactory* factory);

  QTreeView* view() const;
  /// The row of an index of the view; null for an invalid one.
  QtBrowserItem* itemFor(const QModelIndex& index) const;
  QtBrowserItem* currentItem() const;
  void setCurrentItem(QtBrowserItem* item);
  /// Opens the editor of a row.
  void editItem(QtBrowserItem* item);

signals:
  void collapsed(QtBrowserItem* item);
  void expanded(QtBrowserItem* item);
  /// Null if no row is the current one.
  void currentItemChanged(QtBrowserItem* item);

protected:
  void changeEvent(QEvent* event) override;

private:
  QWidget* createEditor(QtProperty* property, QWidget* parent) const;
  void watch(QtAbstractPropertyManager* manager);
  void watchAll(const QtProperty* property);
  void showProperty(QtProperty* property);
  void addBelow(QtProperty* above, QtProperty* property);
  void removeBelow(const QtProperty* above, const QtProperty* property);
  void removeItems(const QtProperty* property);
  bool passes(const QtBrowserItem* item) const;
  void settle(const QtBrowserItem* item);
  void settleAll();

  PropertyTreeModel* model_;
  PropertyDelegate* delegate_;
  PropertyTreeView* view_;
  std::map<QtAbstractPropertyManager*, QtVariantEditorFactory*>
      factories_; ///< of all that are watched
  Filter filter_;
};
