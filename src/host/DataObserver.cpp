#include "host/DataObserver.h"

#include <QObject>

namespace DATA {

void DataObserver::dataObjectGoesAway() {
  objectIsGone_ = true;
  object_ = nullptr;
  if (auto* object = dynamic_cast<QObject*>(this))
    object->deleteLater();
  else
    delete this;
}

} // namespace DATA
