#include "translations/UntranslatedTexts.h"

#include "page/model/Canvas.h"
#include "page/model/Items.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabBar>

namespace {

using namespace TVR::Page;

/// Brackets may hold brackets: a text with another one in its place holder.
QString withoutBrackets(QString text) {
  static const QRegularExpression innermost("\\[!! ((?!\\[!!).)*? !!\\]",
                                            QRegularExpression::DotMatchesEverythingOption);
  while (text.contains(innermost))
    text.remove(innermost);
  return text;
}

class Collector {
public:
  void look(const QString& where, const QString& text) {
    if (const QString left = leftInEnglish(text); !left.isEmpty())
      found << QStringLiteral("%1: %2 (in: %3)").arg(where, left, text);
  }

  QStringList found;
};

void lookAtActions(const QWidget& widget, Collector& collector) {
  for (const QAction* action : widget.actions()) {
    const QString where = "action " + action->objectName();
    collector.look(where, action->text());
    collector.look(where + ", tool tip", action->toolTip());
    collector.look(where + ", status tip", action->statusTip());
  }
}

void lookAtHeaders(const QWidget& widget, Collector& collector) {
  const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
  const QAbstractItemModel* model = view ? view->model() : nullptr;
  for (int column = 0; model && column < model->columnCount(); ++column)
    collector.look("header of " + view->objectName(),
                   model->headerData(column, Qt::Horizontal).toString());
}

void lookAt(const QWidget& widget, Collector& collector) {
  const QString where =
      QStringLiteral("%1 %2").arg(widget.metaObject()->className(), widget.objectName());
  collector.look(where + ", title", widget.windowTitle());
  collector.look(where + ", tool tip", widget.toolTip());
  collector.look(where + ", status tip", widget.statusTip());
  collector.look(where + ", accessible name", widget.accessibleName());
  collector.look(where + ", accessible description", widget.accessibleDescription());
  if (const auto* label = qobject_cast<const QLabel*>(&widget))
    collector.look(where, label->text());
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
    collector.look(where, button->text());
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
    collector.look(where, box->title());
  if (const auto* menu = qobject_cast<const QMenu*>(&widget))
    collector.look(where, menu->title());
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
    collector.look(where + ", placeholder", edit->placeholderText());
  if (const auto* box = qobject_cast<const QSpinBox*>(&widget))
    collector.look(where, box->prefix() + box->suffix());
  if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
    for (int tab = 0; tab < tabs->count(); ++tab)
      collector.look(where, tabs->tabText(tab));
  lookAtActions(widget, collector);
  lookAtHeaders(widget, collector);
}

void lookAt(const Item& item, Collector& collector) {
  const QString where = QStringLiteral("item %1").arg(item.id);
  collector.look(where + ", name", item.name);
  if (const auto* text = dynamic_cast<const TextItem*>(&item))
    collector.look(where, text->html);
  if (const auto* plot = dynamic_cast<const PlotItem*>(&item))
    collector.look(where + ", legend", plot->legendText);
  if (const auto* isoline = dynamic_cast<const IsolineItem*>(&item))
    collector.look(where + ", legend", isoline->legendText);
  if (const auto* curve = dynamic_cast<const CurveItem*>(&item))
    for (const CurveItem::Mark& mark : curve->marks)
      collector.look(where + ", legend", mark.legend);
  if (const auto* grid = dynamic_cast<const GridDataItem*>(&item))
    for (const GridDataItem::DataSet& set : grid->sets)
      collector.look(where + ", data", set.title);
  for (const auto& child : item.children)
    lookAt(*child, collector);
}

} // namespace

QString leftInEnglish(const QString& text) {
  static const QRegularExpression markup("<[^>]*>|&[a-z]+;");
  static const QRegularExpression same(
      "\\b(Tevrane|TVR|Qt|SUNDIALS|CVODE|kWh|kW|MJ|min|mm|bgl|PDF|PNG|SVG|DXF|Ctrl|Alt|Shift)\\b");
  static const QRegularExpression word("[A-Za-z]{2,}");
  const QString rest = withoutBrackets(QString(text).replace(markup, " ")).remove('&').remove(same);
  return rest.contains(word) ? rest.simplified() : QString();
}

QStringList untranslatedTexts(const QWidget& window) {
  Collector collector;
  lookAt(window, collector);
  for (const QWidget* child : window.findChildren<QWidget*>())
    lookAt(*child, collector);
  collector.found.removeDuplicates();
  return collector.found;
}

QStringList untranslatedTexts(const Canvas& page) {
  Collector collector;
  for (const auto& item : page.items())
    lookAt(*item, collector);
  return collector.found;
}
