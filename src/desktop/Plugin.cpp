#include "desktop/Plugin.h"

#include <QMetaObject>

namespace TVR::Desktop {

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

void Plugin::watch(QObject& receiver, const char* documentChanged, const char* runChanged) const {
  for (QObject* one : object_.children()) {
    if (qobject_cast<BrenvikApp::ProjectDocument*>(one))
      QObject::connect(one, SIGNAL(changed()), &receiver, documentChanged);
    if (qobject_cast<BrenvikApp::RunState*>(one))
      QObject::connect(one, SIGNAL(changed()), &receiver, runChanged);
  }
}

} // namespace TVR::Desktop
