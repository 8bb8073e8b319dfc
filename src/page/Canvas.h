#pragma once

#include "page/Items.h"

#include <QByteArray>
#include <QColor>
#include <QDomDocument>
#include <QMap>
#include <QObject>

#include <memory>
#include <vector>

namespace TVR::Page {

/// A sheet of paper with its items: what a graphics window shows and what is stored with a project.
/// All changes of items go through it, so that observers hear of them and the views repaint.
///
/// An operation on an id that no item has does nothing and gives 0, an invalid value or null. Main
/// thread only.
class Canvas : public QObject {
  Q_OBJECT

public:
  explicit Canvas(QObject* parent = nullptr);
  ~Canvas() override;

  QSizeF paperSize() const { return paperSize_; } ///< [mm]
  QColor background() const { return background_; }
  /// The items that lie directly on the sheet, the lowest first.
  const std::vector<std::unique_ptr<Item>>& items() const { return items_; }
  Item* item(int id) const;
  /// The item of this id as a `Kind`, null if it is none.
  template <typename Kind>
  Kind* item(int id) const {
    return dynamic_cast<Kind*>(item(id));
  }
  /// The lowest id of the items with this name, 0 if there is none.
  int itemByName(const QString& name) const;
  QList<int> childItems(int id) const;

  int addPicture(int plot, const QPointF& topLeft, const QSizeF& size);
  /// A curve whose points `connected` joins; 0 shows the symbols only.
  int addCurve(int plot, const QPolygonF& points, bool connected);
  int addGridData(int plot);
  /// A new item from a stored element, with its children; 0 if the element is none. Its ids are new
  /// ones, and references between the imported items follow them.
  int importItem(int plot, const QDomElement& element);
  /// Removes an item and its children; their observers are told that they go away.
  void removeItem(int id);
  void moveToBackground(int id);
  void clear();

  QVariant property(int id, int number) const;
  void setProperty(int id, int number, const QVariant& value);
  /// The data of the item changed behind the canvas: repaint it, and let automatic axes take it in.
  void redraw(int id);
  /// Moves a point of a curve as the user does with the mouse, and notifies of PointMoved.
  void movePoint(int curve, int index, const QPointF& point);

  /// Between these no view repaints; they nest.
  void beginUpdate();
  void endUpdate();

  void attachObserver(int id, DATA::DataObserver* observer);
  void detachObserver(int id, DATA::DataObserver* observer);
  /// The notification in progress; 0 outside of one.
  int lastChangedItem() const { return changedItem_; }
  int lastChangedProperty() const { return changedProperty_; }
  void setNotificationsEnabled(bool enabled) { notifies_ = enabled; }

  /// Replaces the page by a document with the root `CanvasEx`; its items keep their ids. False, and
  /// an empty page, if it is none.
  bool load(const QByteArray& document);
  /// The page as such a document. What `load` did not understand stands in it unchanged.
  QByteArray save() const;

signals:
  /// Something that is drawn has changed; once per update bracket.
  void changed();

private:
  // to be filled by the implementation
  QSizeF paperSize_;
  QColor background_ = Qt::white;
  std::vector<std::unique_ptr<Item>> items_;
  int changedItem_ = 0;
  int changedProperty_ = 0;
  bool notifies_ = true;
};

} // namespace TVR::Page
