#include "gui/editor/DesignTree.h"

#include "design/ParameterId.h"
#include "gui/editor/DoubleEditorFactory.h"
#include "gui/editor/ValueRemark.h"
#include "propertybrowser/QtVariantEditorFactory.h"

#include <QHeaderView>
#include <QResizeEvent>
#include <QTreeView>

namespace TVR::GUI {

using namespace Parameter;

namespace {

int typeOf(EditorKind kind) {
  switch (kind) {
  case EditorKind::Text:
    return QMetaType::QString;
  case EditorKind::Truth:
    return QMetaType::Bool;
  case EditorKind::Count:
    return QMetaType::Int;
  case EditorKind::Number:
    return QMetaType::Double;
  case EditorKind::Group:
    break;
  }
  return QtVariantPropertyManager::groupTypeId();
}

} // namespace

DesignTree::DesignTree(QWidget* parent)
    : QObject(parent), browser_(new QtTreePropertyBrowser(parent)),
      manager_(new QtVariantPropertyManager(this)) {
  auto* const factory = new QtVariantEditorFactory(this);
  factory->setFactoryForType(QMetaType::Double, new DoubleEditorFactory(this));
  browser_->setFactoryForManager(manager_, factory);
  browser_->setRootIsDecorated(true);
  browser_->setAlternatingRowColors(true);
  browser_->view()->setIndentation(browser_->fontMetrics().height());
  browser_->view()->viewport()->installEventFilter(this);
  build();
  setEditable(false);
}

void DesignTree::build() {
  for (const EditorRow& row : editorRows()) {
    const Row entry{&row, manager_->addProperty(typeOf(row.kind))};
    entry.property->setData(row.id);
    rows_.push_back(entry);
    propertyOfId_[row.id] = entry.property;
    if (row.group != 0)
      propertyOfId_.at(row.group)->addSubProperty(entry.property);
  }
  retranslate();
  for (const Row& entry : rows_)
    if (entry.row->group == 0)
      browser_->addProperty(entry.property);
  spanGroups({});
}

bool DesignTree::eventFilter(QObject* watched, QEvent* event) {
  // A remark may be longer than the whole row, so that contents are no measure.
  if (event->type() == QEvent::Resize) {
    constexpr double shareOfNames = 0.62;
    const int width = static_cast<QResizeEvent*>(event)->size().width();
    browser_->view()->header()->resizeSection(0, qRound(width * shareOfNames));
  }
  return QObject::eventFilter(watched, event);
}

/// The name of a group has the whole width of the tree.
void DesignTree::spanGroups(const QModelIndex& above) {
  QTreeView* const view = browser_->view();
  for (int row = 0; row < view->model()->rowCount(above); ++row) {
    const QModelIndex index = view->model()->index(row, 0, above);
    if (!browser_->itemFor(index)->property()->isGroup())
      continue;
    view->setFirstColumnSpanned(row, above, true);
    spanGroups(index);
  }
}

/// The column of names is narrow: its tool tips say them in full.
void DesignTree::setName(const Row& entry) {
  const QString name = editorLabel(*entry.row, idOf(entry.property));
  entry.property->setPropertyName(name);
  entry.property->setToolTip(name.toHtmlEscaped());
}

void DesignTree::setAttributes(const EditorRow& row, QtProperty* property,
                               QtVariantPropertyManager& manager) {
  if (!row.isNumber())
    return;
  const auto set = [&](const char* attribute, const QVariant& value) {
    manager.setAttribute(property, attribute, value);
  };
  set("prefix", editorUnit(row));
  if (row.kind == EditorKind::Number)
    set("decimals", row.decimals);
  if (row.isResult)
    return;
  set("minimum", row.least);
  set("maximum", row.most);
  if (row.step != 0)
    set("singleStep", row.step);
  if (row.id == HydraulicConductivity)
    set("format", "g");
}

/// A project may show other parameters in the same rows than the one before.
void DesignTree::file(const ProjectReader& project) {
  propertyOfId_.clear();
  for (const Row& entry : rows_) {
    const int id = shownParameter(*entry.row, project);
    propertyOfId_[id] = entry.property;
    if (idOf(entry.property) == id)
      continue;
    entry.property->setData(id);
    entry.property->setModified(false);
    setName(entry);
  }
}

void DesignTree::showValue(const Row& entry, const ProjectReader& project, Typed typed) {
  const QVariant value = treeValue(*entry.row, project);
  const bool isKept = typed == Typed::Kept && entry.property->isModified();
  if (isKept && entry.property->value() != value)
    return;
  manager_->setValue(entry.property, value);
  entry.property->setModified(false);
}

void DesignTree::show(const ProjectReader& project, Typed typed) {
  file(project);
  for (const Row& entry : rows_)
    if (!entry.property->isGroup())
      showValue(entry, project, typed);
  const std::set<int> hidden = hiddenParameters(project);
  for (const auto& [id, property] : propertyOfId_)
    property->setVisible(!hidden.contains(id));
}

/// A value as its row would show it.
QString DesignTree::textOf(const EditorRow& row, const QVariant& value) {
  QtVariantPropertyManager manager;
  QtProperty* const sample = manager.addProperty(typeOf(row.kind));
  setAttributes(row, sample, manager);
  sample->setValue(value);
  return sample->valueText();
}

std::vector<DesignTree::Consequence> DesignTree::consequences(const ProjectReader& project) const {
  std::vector<Consequence> found;
  for (const Row& entry : rows_) {
    const QVariant value = treeValue(*entry.row, project);
    if (value.isValid() && !entry.property->isModified() && value != entry.property->value())
      found.push_back({entry.property, textOf(*entry.row, value)});
  }
  return found;
}

void DesignTree::remark(const ProjectReader& project) {
  for (const Row& entry : rows_)
    entry.property->setRemark(valueRemark(*entry.row, project));
}

void DesignTree::setEditable(bool editable) {
  for (const Row& entry : rows_)
    if (!entry.property->isGroup())
      entry.property->setEnabled(editable && !entry.row->isResult);
}

PropertyEdits DesignTree::edits() const {
  PropertyEdits edits;
  for (const auto& [id, property] : propertyOfId_)
    if (property->isModified())
      edits.push_back({id, storedValue(*editorRow(id), property->value())});
  return edits;
}

void DesignTree::retranslate() {
  for (const Row& entry : rows_) {
    setName(entry);
    setAttributes(*entry.row, entry.property, *manager_);
  }
}

} // namespace TVR::GUI
