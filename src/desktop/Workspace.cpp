#include "desktop/Workspace.h"

#include "page/window/PageWindow.h"

#include <QPainter>
#include <QTabBar>

namespace TVR::Desktop {

Workspace::Workspace(QWidget* parent) : QTabWidget(parent) {
  setDocumentMode(true);
  setTabsClosable(true);
  setMovable(true);
  connect(this, &QTabWidget::tabCloseRequested, this, &Workspace::closeTab);
  connect(this, &QTabWidget::currentChanged, this, [this] { emit activated(currentWidget()); });
  connect(tabBar(), &QTabBar::tabMoved, this, &Workspace::windowsChanged);
}

Workspace::~Workspace() {
  // Widgets go with the base class, when there is no list of them any more.
  for (const auto& [widget, window] : windows_)
    widget->disconnect(this);
  // Not by taking the connections apart: among them is the one by which the library forgets the
  // face that assistive technology has been given. That signal comes in any case.
  blockSignals(true);
}

void Workspace::add(BrenvikApp::WorkspaceWindow* window) {
  if (!window || !window->widget())
    return;
  QWidget* const widget = window->widget();
  if (windows_.emplace(widget, window).second) {
    connect(widget, &QWidget::windowTitleChanged, this, [this, widget] { showTitle(*widget); });
    connect(widget, &QObject::destroyed, this, [this, widget] { windows_.erase(widget); });
    emit adding(widget);
    addTab(widget, widget->windowIcon(), QString());
    showTitle(*widget);
  }
  setCurrentWidget(widget);
  widget->setFocus();
}

void Workspace::showTitle(QWidget& widget) {
  QString title = widget.windowTitle();
  setTabText(indexOf(&widget), title.replace('&', "&&"));
  emit windowsChanged();
}

BrenvikApp::WorkspaceWindow* Workspace::currentWindow() const {
  const auto found = windows_.find(currentWidget());
  return found == windows_.end() ? nullptr : found->second;
}

Page::PageWindow* Workspace::currentPage() const {
  return qobject_cast<Page::PageWindow*>(currentWidget());
}

QList<QWidget*> Workspace::widgets() const {
  QList<QWidget*> widgets;
  for (int i = 0; i < count(); ++i)
    widgets.append(widget(i));
  return widgets;
}

void Workspace::closeTab(int index) {
  QWidget* const closed = widget(index);
  if (!closed || (guard_ && !guard_(*closed)))
    return;
  emit closing(closed);
  if (!closed->close())
    return;
  windows_.erase(closed);
  removeTab(indexOf(closed));
  closed->deleteLater();
}

void Workspace::goOn(int steps) {
  if (count() > 0)
    setCurrentIndex(((currentIndex() + steps) % count() + count()) % count());
}

void Workspace::tabInserted(int index) {
  QTabWidget::tabInserted(index);
  emit windowsChanged();
}

void Workspace::tabRemoved(int index) {
  QTabWidget::tabRemoved(index);
  emit windowsChanged();
}

/// An empty workspace says how to fill it.
void Workspace::paintEvent(QPaintEvent* event) {
  QTabWidget::paintEvent(event);
  if (count() > 0)
    return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                   tr("Open a project from the File menu, or drop its file here."));
}

} // namespace TVR::Desktop
