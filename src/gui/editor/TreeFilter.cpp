#include "gui/editor/TreeFilter.h"

#include "gui/editor/DesignTree.h"
#include "gui/editor/ValueStory.h"
#include "project/ParameterTable.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QTextDocumentFragment>

namespace TVR::GUI {

TreeFilter::TreeFilter(DesignTree& tree, const DefaultDesign& defaults, const ValueStory& story,
                       QWidget* parent)
    : QWidget(parent), tree_(tree), defaults_(defaults), story_(story), search_(new QLineEdit),
      onlyChanged_(new QCheckBox) {
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(search_, 1);
  layout->addWidget(onlyChanged_);
  search_->setObjectName(QStringLiteral("searchField"));
  search_->setClearButtonEnabled(true);
  onlyChanged_->setObjectName(QStringLiteral("onlyChangedBox"));
  connect(search_, &QLineEdit::textChanged, this, &TreeFilter::apply);
  connect(onlyChanged_, &QCheckBox::toggled, this, &TreeFilter::apply);
  retranslate();
}

void TreeFilter::retranslate() {
  search_->setPlaceholderText(tr("Search"));
  search_->setAccessibleName(tr("Search the design"));
  search_->setToolTip(tr("Finds values by name, key, unit and tool tip"));
  onlyChanged_->setText(tr("Only changed"));
  onlyChanged_->setToolTip(tr("Shows only values that differ from the defaults"));
}

void TreeFilter::setTabOrderBetween(QWidget* before, QWidget* behind) {
  setTabOrder(before, search_);
  setTabOrder(search_, onlyChanged_);
  setTabOrder(onlyChanged_, behind);
}

void TreeFilter::apply() {
  if (search_->text().trimmed().isEmpty() && !onlyChanged_->isChecked())
    tree_.browser()->setFilter({});
  else
    tree_.browser()->setFilter([this](const QtProperty& property) {
      return !property.isGroup() && (!onlyChanged_->isChecked() || isChanged(property)) &&
             isFound(property);
    });
}

bool TreeFilter::isChanged(const QtProperty& property) const {
  const QVariant value = defaults_.valueOf(property);
  return property.isModified() || (value.isValid() && value != property.value());
}

bool TreeFilter::isFound(const QtProperty& property) const {
  const QString wanted = search_->text().trimmed();
  const auto has = [&wanted](const QString& text) {
    return text.contains(wanted, Qt::CaseInsensitive);
  };
  const int id = DesignTree::idOf(&property);
  if (has(property.propertyName()) || has(QString::fromUtf8(parameterRow(id).key)))
    return true;
  if (has(tree_.manager()->attributeValue(&property, QStringLiteral("prefix")).toString()))
    return true;
  return has(QTextDocumentFragment::fromHtml(story_.text(id)).toPlainText());
}

} // namespace TVR::GUI
