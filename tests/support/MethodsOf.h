#pragma once

#include <QMetaMethod>
#include <QStringList>

/// The methods that a class declares to the meta-object system itself, in their order, as
/// "signal finished()", "slot run()" or "method get()".
inline QStringList methodsOf(const QMetaObject& meta) {
  QStringList methods;
  for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
    const QMetaMethod method = meta.method(i);
    const char* const kind = method.methodType() == QMetaMethod::Signal ? "signal "
                             : method.methodType() == QMetaMethod::Slot ? "slot "
                                                                        : "method ";
    methods << kind + QString::fromLatin1(method.methodSignature());
  }
  return methods;
}
