#include "plugin/LibraryFunction.h"
#include "plugin/PluginTest.h"

#include <QMetaType>
#include <QPolygonF>

namespace {

using PolygonTypeTest = PluginTest;

/// Names of types that were made known to Qt's queued signals, and what they stand for.
QMap<QByteArray, int>& registeredNames() {
  static QMap<QByteArray, int> names;
  return names;
}

} // namespace

/// Stands in front of the function of the library, for all of the test program: Qt has a number for
/// polygons of its own, so nothing else tells whether they were registered.
int QMetaType::registerNormalizedTypedef(const ::QByteArray& name, int type) {
  registeredNames()[name] = type;
  static auto* const ofTheLibrary = libraryFunction<int(const ::QByteArray&, int)>(
      "_ZN9QMetaType25registerNormalizedTypedefERK10QByteArrayi");
  return ofTheLibrary(name, type);
}

TEST_F(PolygonTypeTest, queuedSignalsMayCarryPolygonsOnceThePluginLives) {
  registeredNames().clear();
  TVR::TVRPlugin plugin;
  EXPECT_EQ(registeredNames().value("QPolygonF"), qMetaTypeId<QPolygonF>());
}
