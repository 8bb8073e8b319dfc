#include "gui/editor/TreeAids.h"

#include "gui/editor/DesignTree.h"
#include "gui/editor/TreeFilter.h"
#include "project/ParameterTable.h"

#include <QActionGroup>
#include <QMenu>
#include <QTreeView>

#include <memory>

namespace TVR::GUI {

TreeAids::TreeAids(DesignTree& tree, const Data::Manager& store, QObject* parent)
    : QObject(parent), tree_(tree), defaults_(store), story_(store, units_), marks_(tree),
      filter_(new TreeFilter(tree, defaults_, story_)) {
  QtTreePropertyBrowser* const browser = tree.browser();
  browser->setToolTips([this](const QtProperty& property) {
    return property.isGroup() ? QString() : story_.text(DesignTree::idOf(&property));
  });
  connect(browser, &QtTreePropertyBrowser::currentItemChanged, this, &TreeAids::showMarks);
  browser->view()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(browser->view(), &QWidget::customContextMenuRequested, this, &TreeAids::showMenu);
  showUnits();
}

void TreeAids::setOrigins(const std::shared_ptr<const Data::ValueOrigins>& origins) {
  story_.setOrigins(origins);
  update();
}

void TreeAids::update() {
  story_.forget();
  for (const auto& [id, property] : tree_.propertyOfId())
    property->setItalic(story_.isComputed(id));
  showMarks();
}

void TreeAids::retranslate() {
  filter_->retranslate();
  showUnits(); // after the tree, which names the stored ones
  showMarks();
}

void TreeAids::showMarks() {
  const QtBrowserItem* const item = tree_.browser()->currentItem();
  if (item && !item->property()->isGroup())
    marks_.show(DesignTree::idOf(item->property()), story_.graph());
  else
    marks_.clear();
}

void TreeAids::showUnits() {
  for (const auto& [id, property] : tree_.propertyOfId()) {
    const std::optional<DisplayUnit> unit = units_.unitFor(parameterRow(id).unitOfValue());
    if (!unit)
      continue;
    tree_.manager()->setAttribute(property, "scale", unit->scale);
    tree_.manager()->setAttribute(property, "prefix", ' ' + QString::fromUtf8(unit->name));
  }
}

void TreeAids::addUnits(QMenu& menu, DisplayUnits::Quantity quantity, const QString& title) {
  QMenu* const units = menu.addMenu(title);
  auto* const group = new QActionGroup(units);
  int choice = 0;
  for (const DisplayUnit& unit : DisplayUnits::choices(quantity)) {
    QAction* const action = units->addAction(QString::fromUtf8(unit.name));
    action->setCheckable(true);
    action->setChecked(choice == units_.chosen(quantity));
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, quantity, choice] {
      units_.choose(quantity, choice);
      showUnits();
    });
    ++choice;
  }
}

QMenu* TreeAids::menuOf(QtProperty* property) {
  if (!property || property->isGroup())
    return nullptr;
  auto* const menu = new QMenu(tree_.browser());
  QAction* const reset = menu->addAction(tr("Reset to the default"));
  const QVariant value = defaults_.valueOf(*property);
  reset->setEnabled(property->isEnabled() && value.isValid() && value != property->value());
  connect(reset, &QAction::triggered, this, [property, value] { property->setValue(value); });
  menu->addSeparator();
  addUnits(*menu, DisplayUnits::FlowRate, tr("Show flow rates in"));
  addUnits(*menu, DisplayUnits::Velocity, tr("Show velocities in"));
  return menu;
}

void TreeAids::showMenu(const QPoint& position) {
  QTreeView* const view = tree_.browser()->view();
  const QtBrowserItem* const item = tree_.browser()->itemFor(view->indexAt(position));
  const std::unique_ptr<QMenu> menu(menuOf(item ? item->property() : nullptr));
  if (menu)
    menu->exec(view->viewport()->mapToGlobal(position));
}

} // namespace TVR::GUI
