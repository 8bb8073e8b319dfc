#pragma once

#include "project/ProjectTarget.h"
#include "store/ReferenceDatabase.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QVariant>

#include <memory>
#include <optional>
#include <vector>

class QSettings;
class QSqlQuery;

namespace BrenvikApp {
class WorkspaceWindow;
}

namespace TVR {
class DemandModel;
class PropertyModel;
class RuleTarget;
class WellDemandModel;
class WellModel;
} // namespace TVR

namespace TVR::Data {

class ChangeRecorder;
class Journal;

/// The one live project: a Project with its rules, its signals and its tables. `setValue` runs the
/// dependency rules on the stack of the writer. A value that came from a file is a text until it is
/// rewritten; readers convert where they use it, always in the C locale. No operation throws. Not
/// safe for concurrent writes: only the main thread, or the thread of a batch run, writes.
class Manager : public QObject, public ProjectTarget {
  Q_OBJECT

public:
  /// The role under which `value` gives the effective and the stored value.
  enum Role { EffectiveValue = 0, StoredValue = 2 };

  /// The process-wide store, made and filled with defaults on first use; lives to the end.
  static Manager* instance();
  /// A store of its own beside that, with the defaults: for who tries changes out.
  Manager();
  ~Manager() override;

  /// The value of a parameter; invalid for an id without one and for any other role.
  QVariant value(int id, int role = EffectiveValue) const;
  /// Stores a value, runs the rules that depend on it and emits `dataChanged`. False, and nothing
  /// changed, for an invalid value only.
  bool setValue(int id, QVariant value) override;
  /// The translated label (role 0); invalid for any other role.
  QVariant label(int id, int role = EffectiveValue) const;

  /// The project as it stands.
  const Project& project() const { return project_; }
  /// Puts another project in the place of this one, as it is: no rule runs. The tables follow: that
  /// of the periods, if the project has made it, has one at least; those that it has not made stand
  /// as soon as they are asked for. `dataChanged` is emitted once. The results that are there stay,
  /// with their frame.
  void setProject(const Project& project);
  /// A journal is told of every change that begins from now on, after those that were added before
  /// it. It outlives the store or is removed.
  void addJournal(Journal* journal);
  void removeJournal(Journal* journal);
  /// Who tells the journals.
  ChangeRecorder& changes() const { return *changes_; }
  /// The store as rules see it, to look at what they read.
  const RuleTarget& ruleReader() const;
  /// What is stored, by id, without any conversion.
  const ParameterValues& values() const { return project_.values; }
  /// The name of a parameter in files; see ParameterKeys.
  QString key(int id) const { return keys_.key(id); }

  // What readers of files may do; see ProjectTarget. Where a table is asked for it is made.
  QVariant stored(int id) const override { return project_.values.value(id); }
  const Wells& enteredWells() const override { return project_.wells; }
  const ByPeriod& enteredDurations() const override { return project_.durations; }
  QVariant referenceText(int id, int row) const override { return referenceValue(id, row); }
  void setStored(int id, const QVariant& value) override;
  const ParameterKeys& keys() const override { return keys_; }
  int makeTable(ProjectTable table) override;
  void setCells(ProjectTable table, const std::vector<TableCell>& cells) override;
  void resizePeriods(int count) override;
  void giveAllPlaces() override;
  void clearWellEntries() override;
  void setResultFrame(const RunFrame& frame) override { resultFrame_ = frame; }
  void takePage(const QByteArray& document) override { emit graphicsWindowContents(document); }

  /// Back to the defaults of the reference database, without wells and demand. The language stays.
  void reset();
  /// Reads a batch file (ending ".tbat") or a project file into the store, after a reset;
  /// `fieldIds` takes the ids of the page items that a project file names. False if a project file
  /// can't be read or asks for more than ProjectLimits; the store then holds the defaults.
  bool read(const QString& fileName, QMap<QString, int>& fieldIds);
  /// The file that the project was read from or belongs to since; empty after a reset.
  const QString& fileName() const { return fileName_; }
  void setFileName(const QString& fileName) { fileName_ = fileName; }
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

  /// Positions of the wells in map coordinates [m], one per well. A well that nobody gave its place
  /// stands on the default position and follows it.
  const QVector<QPointF>& wellPositions() const { return project_.wells.positions; }
  /// The table of wells, with one position for each well of the parameter `_number_of_wells`.
  WellModel* wellModel();
  /// The demand periods of a year; at least one when the table is made.
  DemandModel* demandModel();
  /// The rates of each well in each demand period.
  WellDemandModel* wellDemandModel();
  /// Whether the tables have been asked for yet.
  bool hasWellModel() const { return project_.made.wells; }
  bool hasDemandModel() const { return project_.made.periods; }
  bool hasWellDemandModel() const { return project_.made.wellPeriods; }
  /// The frame of the run that the present results come from; none without results. It does not
  /// follow what is edited after the run, and a project file keeps it.
  const std::optional<RunFrame>& resultFrame() const { return resultFrame_; }
  /// A new table of the project's or the user's address, owned by the store.
  PropertyModel* addressModel(bool user);

  /// Whether the reference database can be queried; see ReferenceDatabase::open.
  static bool openDatabase() { return ReferenceDatabase::open(); }
  /// Tells the user what the database answered.
  static void reportQueryError(const QSqlQuery& query) { ReferenceDatabase::reportError(query); }
  /// The value of a parameter's column in row `row` (from 1) of its reference table; for the
  /// building type the name in the language of the moment. Invalid if there is none.
  QVariant referenceValue(int id, int row) const;
  /// The choices of the aquifer material, the building type or the closest location.
  QList<Choice> choices(int id) const;
  /// Appends the choices to a combo box, or to whatever takes items with data as one does.
  template <class ComboBox>
  void fillComboBox(int id, ComboBox* box) const {
    for (const Choice& choice : choices(id))
      box->addItem(choice.text, choice.row);
  }

signals:
  void dataChanged();
  void startSimulation();
  void updateCurrentGraphic();
  void graphicsWindowContents(QByteArray contents);

private:
  void loadDefaults();
  void keep(int id, const QVariant& value);
  QString language() const;
  void moveWellsFromDefaultPosition(const QPointF& from, const QPointF& to);
  void matchWellPositionsToCount(int count);
  void matchWellPositions();
  MadeTables madeTables() const;
  void makeModels(const MadeTables& tables);
  void recalculate(int id);
  void applyReferenceRow(const QString& table, int row);

  /// How models and rules see the store.
  class Access;

  Project project_;
  const ParameterKeys keys_;
  QString fileName_;
  WellModel* wellModel_ = nullptr;
  DemandModel* demandModel_ = nullptr;
  WellDemandModel* wellDemandModel_ = nullptr;
  std::optional<RunFrame> resultFrame_;
  const std::unique_ptr<ChangeRecorder> changes_;
  const std::unique_ptr<Access> access_;
};

} // namespace TVR::Data
