#pragma once

#include <QList>
#include <QMetaType>

#include <memory>
#include <vector>

class QtProperty;

/// One row of a tree: a property at one place. The tree makes and deletes its rows.
class QtBrowserItem final {
public:
  QtBrowserItem(QtProperty* property, QtBrowserItem* parent);
  QtBrowserItem(const QtBrowserItem&) = delete;
  QtBrowserItem& operator=(const QtBrowserItem&) = delete;

  QtProperty* property() const { return property_; }
  /// Null for a top-level row.
  QtBrowserItem* parent() const;
  QList<QtBrowserItem*> children() const;

private:
  friend class PropertyTreeModel;

  int row() const;

  QtProperty* property_;  ///< null in the root alone, which nobody else sees
  QtBrowserItem* parent_; ///< null in the root
  std::vector<std::unique_ptr<QtBrowserItem>> children_;
  bool visible_ = true;
};

Q_DECLARE_METATYPE(QtBrowserItem*)
