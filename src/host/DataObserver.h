#pragma once

namespace DATA {

/// Something whose changes can be observed; the graphics library derives its page items from it.
class DataObject {
public:
  virtual ~DataObject() = default;
};

/// Is told of changes of the data object that it observes.
class DataObserver {
public:
  virtual ~DataObserver() = default;
  virtual DataObject* dataObject() const { return object_; }
  virtual void setDataObject(DataObject* object) { object_ = object; }
  /// The data object is going away: this observer destroys itself, later if it is a QObject and at
  /// once if not.
  virtual void dataObjectGoesAway();
  virtual void update(DataObject* object) = 0;

private:
  DataObject* object_ = nullptr;
  bool objectIsGone_ = false;
};

} // namespace DATA
