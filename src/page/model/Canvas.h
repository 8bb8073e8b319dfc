#pragma once

#include "page/model/PageContents.h"

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

  /// The page as it is, for who writes it.
  const PageContents& contents() const { return page_; }
  /// Replaces the page. The observers of the items that were there are forgotten.
  void setContents(PageContents contents);
  QSizeF paperSize() const { return page_.paperSize; } ///< [mm]
  QColor background() const { return page_.background; }
  /// The items that lie directly on the sheet, the lowest first.
  const std::vector<std::unique_ptr<Item>>& items() const { return page_.items; }
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
  /// Puts an item that was made elsewhere, with its children, into a plot. Their ids are new to the
  /// page: the `nextItemId` of its contents and those that follow. Without such a plot the item is
  /// dropped.
  int addItem(int plot, std::unique_ptr<Item> item);
  /// Removes an item and its children. Their observers are forgotten and not told: being told ends
  /// an observer (see DATA::DataObserver), and one that watches items of the page outlives them.
  void removeItem(int id);
  /// Puts an item behind the others of its plot, or of the sheet.
  void moveToBackground(int id);
  /// Removes all items from the sheet; the ids of those to come go on counting.
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

signals:
  /// Something that is drawn has changed; once per update bracket.
  void changed();

private:
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
  /// Enters an item and its children in the list of ids.
  void adopt(Item& item);
  void touch();
  void notify(int id, int number);
  /// Widens the automatic axes of a plot to hold its contents, up to round numbers if the scale is
  /// not uniform.
  void growAxes(PlotItem& plot);
  /// Brings the isolines of the data sets that are out of date into step with levels and values.
  void traceStaleLines(GridDataItem& grid);
  void matchIsolines(GridDataItem& grid, int set, const std::vector<double>& levels);

  PageContents page_;
  QMap<int, Item*> itemsById_;
  QHash<int, std::vector<Observer>> observers_;
  int updateDepth_ = 0;
  bool changedInUpdate_ = false;
  int changedItem_ = 0;
  int changedProperty_ = 0;
  bool notifies_ = true;
};

/// Holds back the repainting of a canvas's views until a change is complete.
class UpdateScope {
public:
  explicit UpdateScope(Canvas& canvas) : canvas_(canvas) { canvas_.beginUpdate(); }
  ~UpdateScope() { canvas_.endUpdate(); }
  Q_DISABLE_COPY(UpdateScope)

private:
  Canvas& canvas_;
};

} // namespace TVR::Page
