#include "propertybrowser/QtTreePropertyBrowser.h"

#include "propertybrowser/PropertyDelegate.h"
#include "propertybrowser/PropertyTreeModel.h"
#include "propertybrowser/PropertyTreeView.h"
#include "propertybrowser/QtAbstractPropertyManager.h"
#include "propertybrowser/QtVariantEditorFactory.h"

#include <QEvent>
#include <QHeaderView>
#include <QVBoxLayout>

#include <algorithm>

QtTreePropertyBrowser::QtTreePropertyBrowser(QWidget* parent)
    : QWidget(parent), model_(new PropertyTreeModel(this)),
      delegate_(new PropertyDelegate(
          [this](QtProperty* property, QWidget* cell) { return createEditor(property, cell); },
          this)),
      view_(new PropertyTreeView(this)) {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(view_);
  setFocusProxy(view_);
  view_->setModel(model_);
  view_->setItemDelegate(delegate_);
  connect(view_, &QTreeView::collapsed, this,
          [this](const QModelIndex& index) { emit collapsed(itemFor(index)); });
  connect(view_, &QTreeView::expanded, this,
          [this](const QModelIndex& index) { emit expanded(itemFor(index)); });
  connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& index) { emit currentItemChanged(itemFor(index)); });
}

QtTreePropertyBrowser::~QtTreePropertyBrowser() = default;

QWidget* QtTreePropertyBrowser::createEditor(QtProperty* property, QWidget* parent) const {
  const auto found = factories_.find(property->propertyManager());
  const bool hasFactory = found != factories_.end() && found->second;
  return hasFactory ? found->second->createEditor(property, parent) : nullptr;
}

void QtTreePropertyBrowser::watch(QtAbstractPropertyManager* manager) {
  if (!factories_.emplace(manager, nullptr).second)
    return;
  using Manager = QtAbstractPropertyManager;
  connect(manager, &Manager::propertyChanged, this, &QtTreePropertyBrowser::showProperty);
  connect(manager, &Manager::subPropertyAdded, this, &QtTreePropertyBrowser::addBelow);
  connect(manager, &Manager::subPropertyRemoved, this, &QtTreePropertyBrowser::removeBelow);
  connect(manager, &Manager::propertyRemoved, this, &QtTreePropertyBrowser::removeItems);
  connect(manager, &QObject::destroyed, this, [this, manager] { factories_.erase(manager); });
}

void QtTreePropertyBrowser::watchAll(const QtProperty* property) {
  watch(property->propertyManager());
  for (const QtProperty* const below : property->subProperties())
    watchAll(below);
}

QtBrowserItem* QtTreePropertyBrowser::addProperty(QtProperty* property) {
  watchAll(property);
  QtBrowserItem* const item = model_->append(property);
  view_->expandRecursively(model_->indexOf(item));
  settle(item);
  return item;
}

void QtTreePropertyBrowser::removeProperty(QtProperty* property) {
  for (QtBrowserItem* const item : model_->topLevelItems()) {
    if (item->property() == property)
      model_->remove(item);
  }
}

void QtTreePropertyBrowser::clear() {
  model_->clear();
}

QList<QtBrowserItem*> QtTreePropertyBrowser::items(const QtProperty* property) const {
  return model_->items(property);
}

QList<QtBrowserItem*> QtTreePropertyBrowser::topLevelItems() const {
  return model_->topLevelItems();
}

void QtTreePropertyBrowser::showProperty(QtProperty* property) {
  if (!property->isEnabled())
    delegate_->dropEditor(property);
  model_->update(property);
  for (const QtBrowserItem* item : model_->items(property)) {
    for (; item->parent(); item = item->parent()) {
    }
    settle(item); // what a row lies in is shown by what passes below
  }
}

void QtTreePropertyBrowser::addBelow(QtProperty* above, QtProperty* property) {
  watchAll(property);
  for (QtBrowserItem* const item : model_->items(above)) {
    QtBrowserItem* const added = model_->append(property, item);
    view_->expand(model_->indexOf(item));
    view_->expandRecursively(model_->indexOf(added));
  }
  settleAll();
}

void QtTreePropertyBrowser::removeBelow(const QtProperty* above, const QtProperty* property) {
  for (QtBrowserItem* const item : model_->items(property)) {
    if (item->parent() && item->parent()->property() == above)
      model_->remove(item);
  }
}

void QtTreePropertyBrowser::removeItems(const QtProperty* property) {
  for (QList<QtBrowserItem*> found = model_->items(property); !found.isEmpty();
       found = model_->items(property)) // a row may lie below another of them
    model_->remove(found.first());
}

bool QtTreePropertyBrowser::isExpanded(const QtBrowserItem* item) const {
  return view_->isExpanded(model_->indexOf(item));
}

void QtTreePropertyBrowser::setExpanded(QtBrowserItem* item, bool expanded) {
  view_->setExpanded(model_->indexOf(item), expanded);
}

bool QtTreePropertyBrowser::passes(const QtBrowserItem* item) const {
  if (!item->property()->isVisible() || !PropertyTreeModel::isItemVisible(item))
    return false;
  if (!filter_ || filter_(*item->property()))
    return true;
  const QList<QtBrowserItem*> below = item->children();
  return std::any_of(below.begin(), below.end(),
                     [this](const QtBrowserItem* child) { return passes(child); });
}

void QtTreePropertyBrowser::settle(const QtBrowserItem* item) {
  const QModelIndex index = model_->indexOf(item);
  const bool hidden = !passes(item);
  if (view_->isRowHidden(index.row(), index.parent()) != hidden)
    view_->setRowHidden(index.row(), index.parent(), hidden);
  for (const QtBrowserItem* const below : item->children())
    settle(below);
}

void QtTreePropertyBrowser::settleAll() {
  for (const QtBrowserItem* const item : model_->topLevelItems())
    settle(item);
}

bool QtTreePropertyBrowser::isItemVisible(const QtBrowserItem* item) const {
  return passes(item);
}

void QtTreePropertyBrowser::setItemVisible(QtBrowserItem* item, bool visible) {
  PropertyTreeModel::setItemVisible(item, visible);
  settleAll();
}

void QtTreePropertyBrowser::setFilter(const Filter& filter) {
  filter_ = filter;
  settleAll();
}

void QtTreePropertyBrowser::setToolTips(const ToolTips& toolTips) {
  model_->setToolTips(toolTips);
}

void QtTreePropertyBrowser::setRootIsDecorated(bool decorated) {
  view_->setRootIsDecorated(decorated);
}

void QtTreePropertyBrowser::setAlternatingRowColors(bool alternating) {
  view_->setAlternatingRowColors(alternating);
}

void QtTreePropertyBrowser::setFactoryForManager(QtAbstractPropertyManager* manager,
                                                 QtVariantEditorFactory* factory) {
  watch(manager);
  factories_[manager] = factory;
}

QTreeView* QtTreePropertyBrowser::view() const {
  return view_;
}

QtBrowserItem* QtTreePropertyBrowser::itemFor(const QModelIndex& index) const {
  return PropertyTreeModel::item(index);
}

QtBrowserItem* QtTreePropertyBrowser::currentItem() const {
  return itemFor(view_->currentIndex());
}

void QtTreePropertyBrowser::setCurrentItem(QtBrowserItem* item) {
  view_->setCurrentIndex(model_->indexOf(item, PropertyTreeModel::ValueColumn));
}

void QtTreePropertyBrowser::editItem(QtBrowserItem* item) {
  setCurrentItem(item);
  view()->edit(model_->indexOf(item, PropertyTreeModel::ValueColumn));
}

void QtTreePropertyBrowser::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange)
    model_->retranslate();
  QWidget::changeEvent(event);
}
