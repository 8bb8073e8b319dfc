#include "desktop/Plugin.h"

#include <QEventLoop>
#include <QMetaObject>
#include <QTimer>

namespace TVR::Desktop {

namespace {

constexpr int patience = 3000; // [ms]

} // namespace

Plugin::Plugin(QObject& object) : object_(object), face_(*qobject_cast<TVRInterface*>(&object)) {}

bool Plugin::call(const char* slot) const {
  return QMetaObject::invokeMethod(&object_, slot, Qt::DirectConnection);
}

bool Plugin::call(const char* slot, const QString& argument) const {
  return QMetaObject::invokeMethod(&object_, slot, Qt::DirectConnection, Q_ARG(QString, argument));
}

void Plugin::setLanguage(const QString& language) const {
  QMetaObject::invokeMethod(&object_, "setLanguage", Qt::DirectConnection, Q_ARG(QString, language),
                            Q_ARG(bool, true));
}

bool Plugin::isRunning() const {
  const auto* state = child<BrenvikApp::RunState>();
  return state && state->isRunning();
}

void Plugin::stopRun() const {
  auto* const state = child<BrenvikApp::RunState>();
  if (!state || !state->isRunning())
    return;
  state->stop();
  if (!state->isRunning())
    return;
  QEventLoop loop;
  QObject::connect(dynamic_cast<QObject*>(state), SIGNAL(changed()), &loop, SLOT(quit()));
  QTimer limit;
  limit.setSingleShot(true);
  QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
  limit.start(patience);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void Plugin::watch(QObject& receiver, const char* documentChanged,
                   const char* situationChanged) const {
  for (QObject* one : object_.children()) {
    if (qobject_cast<BrenvikApp::ProjectDocument*>(one))
      QObject::connect(one, SIGNAL(changed()), &receiver, documentChanged);
    if (qobject_cast<BrenvikApp::RunState*>(one) || qobject_cast<BrenvikApp::ProjectHistory*>(one))
      QObject::connect(one, SIGNAL(changed()), &receiver, situationChanged);
  }
}

} // namespace TVR::Desktop
