#pragma once

#include "data/RunFrame.h"
#include "project/ParameterTable.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QPolygonF>
#include <QVariant>

#include <memory>
#include <optional>

class QComboBox;
class QSettings;
class QSqlQuery;

namespace BrenvikApp {
class WorkspaceWindow;
}

namespace TVR {
class DemandModel;
class PropertyModel;
class WellDemandModel;
class WellModel;
} // namespace TVR

namespace TVR::Data {

/// The one store of a project: parameter values by id (Parameter::Id), the well positions, and the
/// tables of wells and demand. A write runs the dependency rules on the stack of the writer. A
/// value that came from a file is a text until it is rewritten; readers convert where they use it,
/// always in the C locale. No operation throws. Not safe for concurrent writes: only the main
/// thread, or the thread of a batch run, writes.
class Manager : public QObject {
  Q_OBJECT

public:
  /// The role under which `value` gives the effective and the stored value.
  enum Role { EffectiveValue = 0, StoredValue = 2 };

  /// The process-wide store, made and filled with defaults on first use; lives to the end.
  static Manager* instance();

  /// The value of a parameter; invalid for an id without one and for any other role.
  QVariant value(int id, int role = EffectiveValue) const;
  /// The effective value as a whole number, cut towards zero: a file's "4.0" is 4.
  int count(int id) const;
  /// Stores a value, runs the rules that depend on it and emits `dataChanged`. False, and nothing
  /// changed, for an invalid value only.
  bool setValue(int id, QVariant value);
  /// The translated label (role 0); invalid for any other role.
  QVariant label(int id, int role = EffectiveValue) const;

  /// Stores a value as it is: no rule runs and nothing is emitted.
  void setStored(int id, const QVariant& value) { values_.insert(id, value); }
  /// What is stored, by id, without any conversion.
  const QMap<int, QVariant>& values() const { return values_; }

  /// The name of a parameter in files; empty for an id without one. Asking for such a name makes
  /// the empty key known: from then on it is found.
  QString key(int id) const { return keys_[id]; }
  /// The name that the previous program generation used; not unique.
  QString formerKey(int id) const { return formerKeys_.value(id); }
  /// The lowest id with this key; 0 for an unknown key.
  int idOfKey(const QString& key) const;
  /// The lowest id that had this key in the previous program generation; 0 for an unknown key.
  int idOfFormerKey(const QString& key) const { return formerKeys_.key(key, 0); }

  /// Back to the defaults of the reference database, without wells and demand. The language stays.
  void reset();
  /// Reads a batch file (ending ".tbat") or a project file into the store, after a reset;
  /// `fieldIds` takes the ids of the page items that a project file names. False if a project file
  /// can't be read or asks for more than FileLimits; the store then holds the defaults.
  bool read(const QString& fileName, QMap<QString, int>& fieldIds);
  /// The file that the project was read from; empty after a reset.
  const QString& fileName() const { return fileName_; }
  /// Writes the project as a batch file (ending ".tbat") or a project file, the latter with the
  /// page of `window` and the ids of its items unless it is null. False if the file can't be
  /// written, or, with a word to the user, if there is more than could be read again; the older
  /// one then stays.
  bool write(const QString& fileName, BrenvikApp::WorkspaceWindow* window,
             const QMap<QString, int>& fieldIds);
  /// Letters in the texts of project files become entities, or with `decode` entities letters.
  static QString decodeEntities(const QString& text, bool decode);

  /// Keeps parameters and wells in the user's settings.
  void saveLastParameterSet();
  /// Resets the store and takes what the settings keep; if they keep nothing, what those of the
  /// previous program generation keep.
  void restoreLastParameterSet();
  /// Takes the group "current" of the settings of the previous program generation.
  void readCurrentGroup(QSettings& settings);
  /// Brings a value of the previous program generation, just stored, into this one's units.
  void migrateValue(int id);

  /// Positions of the wells in map coordinates [m], one per well. WellModel edits them in place. A
  /// well that has no coordinates yet stands on the default position and follows it.
  QPolygonF& wellPositions() { return wellPositions_; }
  const QPolygonF& wellPositions() const { return wellPositions_; }
  /// The table of wells, with one position for each well of the parameter `_number_of_wells`.
  WellModel* wellModel();
  /// The demand periods of a year; at least one when the table is made.
  DemandModel* demandModel();
  /// The rates of each well in each demand period.
  WellDemandModel* wellDemandModel();
  /// Whether the tables have been asked for yet.
  bool hasWellModel() const { return wellModel_ != nullptr; }
  bool hasDemandModel() const { return demandModel_ != nullptr; }
  bool hasWellDemandModel() const { return wellDemandModel_ != nullptr; }
  /// The frame of the run that the present results come from; none without results. It does not
  /// follow what is edited after the run, and a project file keeps it.
  const std::optional<RunFrame>& resultFrame() const { return resultFrame_; }
  void setResultFrame(const RunFrame& frame) { resultFrame_ = frame; }
  /// A new table of the project's or the user's address, owned by the store.
  PropertyModel* addressModel(bool user);

  /// Whether the reference database can be queried; opens it if need be. No message if the file is
  /// missing, one if its check sum is wrong.
  static bool openDatabase();
  /// Where the reference database lies for a program in this directory: in "data" beside a "bin",
  /// "debug" or "release" directory, else below it.
  static QString databaseFile(const QString& applicationDirectory);
  /// The value of a parameter's column in row `row` (from 1) of its reference table; for the
  /// building type the name in the language of the moment. Invalid if there is none.
  QVariant referenceValue(int id, int row) const;
  /// Appends the choices of the aquifer material, the building type or the closest location.
  void fillComboBox(int id, QComboBox* box);
  /// Tells the user what the database answered.
  static void reportQueryError(const QSqlQuery& query);

signals:
  void dataChanged();
  void startSimulation();
  void updateCurrentGraphic();
  void graphicsWindowContents(QByteArray contents);

private:
  Manager();
  ~Manager() override;

  void initializeKeys();
  void loadDefaults();
  QVariant porosity(int id) const;
  QString language() const;
  QString tableOfParameter(int id) const;
  void moveWellsFromDefaultPosition(const QPointF& from, const QPointF& to);
  void matchWellPositionsToCount(int count);

  void recalculate(int id);
  void applyReferenceRow(const QString& table, int row);

  /// How models and rules see the store.
  class Access;

  QMap<int, QVariant> values_;
  mutable QMap<int, QString> keys_;
  QMap<int, QString> formerKeys_;
  QString fileName_;
  WellModel* wellModel_ = nullptr;
  QPolygonF wellPositions_;
  DemandModel* demandModel_ = nullptr;
  WellDemandModel* wellDemandModel_ = nullptr;
  std::optional<RunFrame> resultFrame_;
  const std::unique_ptr<Access> access_;
};

} // namespace TVR::Data
