#pragma once

#include "host/ApplicationInterface.h"

#include <QByteArray>
#include <QList>
#include <QPolygonF>
#include <QString>
#include <QVariant>

class QDomElement;

namespace DATA {
class DataObserver;
}

/// The host's graphics library: windows that show a page, whose items have integer ids and
/// properties with integer numbers.
namespace Sketra_lib {

/// A window with a page. Its widget has the signal
/// `currentCoordinates(double x, double y, QEvent::Type, Qt::MouseButton)`, the position of the
/// mouse in the map [map units]. A call with an id that no item has does nothing; the property of
/// such an item is invalid.
class GraphicsWorkspaceWindow : public BrenvikApp::WorkspaceWindow {
public:
  virtual void clearContents() = 0;
  /// The item that takes the mouse; 0 for none.
  virtual void setCurrentItem(int item) = 0;
  virtual void moveToBackground(int item) = 0;
  virtual int addPicture(int plot, double x, double y, double width, double height) = 0;
  virtual int addCurve(int plot, const QPolygonF& points, int connected, int flag) = 0;
  virtual int addGridData(int plot, int flag) = 0;
  virtual int importItem(int plot, const QDomElement& item, double version) = 0;
  virtual void setItemProperty(int item, int property, const QVariant& value) = 0;
  virtual QVariant itemProperty(int item, int property) const = 0;
  /// Removes an item and its children.
  virtual void removeItem(int item, int flag) = 0;
  virtual void redrawItem(int item) = 0;
  virtual void beginUpdate() = 0;
  virtual void endUpdate() = 0;
  virtual QList<int> childItems(int item) const = 0;
  /// Below 1 if there is no item with this name.
  virtual int itemByName(const QString& name, int flag) const = 0;
  virtual void attachObserver(int item, DATA::DataObserver* observer) = 0;
  virtual void detachObserver(int item, DATA::DataObserver* observer) = 0;
  /// What the notification in progress is about.
  virtual int lastChangedItem() const = 0;
  virtual int lastChangedProperty() const = 0;
  virtual void setNotificationsEnabled(bool enabled) = 0;
  /// Replaces the page by a serialised one.
  virtual void setContents(const QByteArray& page) = 0;
  /// The page as `setContents` takes it.
  virtual QByteArray contents() const = 0;

protected:
  ~GraphicsWorkspaceWindow() = default;
};

/// The library itself.
class GraphicsInterface {
public:
  virtual BrenvikApp::WorkspaceWindow* graphicsWindow(const QString& name, bool create) = 0;
  virtual void refreshViews() = 0;

protected:
  ~GraphicsInterface() = default;
};

} // namespace Sketra_lib

#define SKETRA_LIBRARY_IID "venlor.BrenvikApplication.Sketralib/1.0"
Q_DECLARE_INTERFACE(Sketra_lib::GraphicsInterface, SKETRA_LIBRARY_IID)
