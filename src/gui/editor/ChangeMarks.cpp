#include "gui/editor/ChangeMarks.h"

#include "propertybrowser/QtProperty.h"

#include <QColor>

namespace TVR::GUI {

ChangeMarks::ChangeMarks(QObject* parent) : QObject(parent) {
  flash_.setSingleShot(true);
  flash_.setInterval(flashTime);
  connect(&flash_, &QTimer::timeout, this, &ChangeMarks::endFlash);
}

void ChangeMarks::mark(QtProperty* property, const QString& note, const QString& inFull,
                       const QColor& colour) {
  marked_.insert(property);
  property->setNote(note, inFull);
  property->setBackground(colour);
  flash_.start();
}

void ChangeMarks::clear() {
  endFlash();
  for (QtProperty* const property : marked_)
    property->setNote({}, {});
  marked_.clear();
}

void ChangeMarks::endFlash() {
  flash_.stop();
  for (QtProperty* const property : marked_)
    property->setBackground({});
}

} // namespace TVR::GUI
