#pragma once

#include "design/ParameterId.h"
#include "store/Manager.h"

#include <QMetaType>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <ostream>

/// Let a failed comparison show texts, and values with their types.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QVariant& value, std::ostream* out) {
  *out << (value.isValid() ? value.typeName() : "invalid") << ' ';
  PrintTo(value.toString(), out);
}

namespace TVR::Data {

/// The one store, back at the defaults of its database and in English before each test.
class StoreTest : public testing::Test {
protected:
  StoreTest() {
    store.setValue(Parameter::GuiLanguage, "en");
    store.reset();
    placeWells({});
  }

  /// Puts wells at these places, which nobody gave them.
  void placeWells(const QVector<QPointF>& positions) {
    Project project = store.project();
    project.wells.positions = positions;
    store.setProject(project);
  }
  QVariant stored(int id) const { return store.values().value(id); }
  int storedType(int id) const { return stored(id).userType(); }
  double number(int id) const { return store.value(id).toDouble(); }
  /// How often `dataChanged` is emitted by a write, which is the number of writes it leads to.
  int writesAfter(int id, const QVariant& value) {
    const QSignalSpy changes(&store, &Manager::dataChanged);
    store.setValue(id, value);
    return changes.size();
  }

  Manager& store = *Manager::instance();
};

} // namespace TVR::Data
