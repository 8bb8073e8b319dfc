#pragma once

#include "page/model/Items.h"

#include <QByteArray>
#include <QColor>
#include <QDomDocument>
#include <QHash>
#include <QMap>
#include <QObject>
#include <QPointer>

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
  /// Removes an item and its children. Their observers are forgotten and not told: being told ends
  /// an observer (see DATA::DataObserver), and one that watches items of the page outlives them.
  void removeItem(int id);
  /// Puts an item behind the others of its plot, or of the sheet.
  void moveToBackground(int id);
  /// Removes all items; the ids of those to come go on counting.
  void clear();

  QVariant property(int id, int number) const;
  /// Sets a property as setItemProperty (ItemProperties.h) does, brings the isolines of a grid into
  /// step with its levels and values, and tells the observers of the item if the value is another
  /// one than before.
  void setProperty(int id, int number, const QVariant& value);
  /// The data of the item changed behind the canvas: repaint it, trace what is out of date, and let
  /// automatic axes take it in.
  void redraw(int id);
  /// Moves a point of a curve as the user does with the mouse, and notifies of PointMoved. An index
  /// that the curve does not have does nothing.
  void movePoint(int curve, int index, const QPointF& point);

  /// Between these no view repaints; they nest. An end without a beginning does nothing.
  void beginUpdate();
  void endUpdate();

  /// An observer hears once of each change, however often it was attached. One that is a QObject
  /// may be destroyed while attached; any other has to be detached before.
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
  friend class PageDocument;

  /// An observer, and the object that it is part of, if it is one that can be watched.
  struct Observer {
    DATA::DataObserver* observer = nullptr;
    bool isObject = false;
    QPointer<QObject> object;
  };

  /// A new item below `parent`, on the sheet if that is null.
  template <typename Kind>
  Kind& add(Item* parent);
  std::vector<std::unique_ptr<Item>>& siblings(const Item& item);
  /// Takes an item and its children out of the lists of ids and observers.
  void forget(const Item& item);
  void adopt(Item& item);
  void touch();
  void notify(int id, int number);
  /// Widens the automatic axes of a plot to hold its contents, up to round numbers if the scale is
  /// not uniform.
  void growAxes(PlotItem& plot);
  /// Brings the isolines of the data sets that are out of date into step with levels and values.
  void traceStaleLines(GridDataItem& grid);
  void matchIsolines(GridDataItem& grid, int set, const std::vector<double>& levels);

  QSizeF paperSize_ = QSizeF(297, 210);
  QColor background_ = Qt::white;
  std::vector<std::unique_ptr<Item>> items_;
  QMap<int, Item*> itemsById_;
  QHash<int, std::vector<Observer>> observers_;
  QDomDocument stored_; ///< the page as it was read, without its items
  int nextItemId_ = 1;
  int updateDepth_ = 0;
  bool changedInUpdate_ = false;
  int changedItem_ = 0;
  int changedProperty_ = 0;
  bool notifies_ = true;
};

} // namespace TVR::Page
