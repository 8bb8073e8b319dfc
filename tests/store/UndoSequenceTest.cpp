#include "project/ParameterTable.h"
#include "store/UndoTest.h"
#include "support/TestDirectory.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <random>
#include <sstream>

namespace TVR::Data {
namespace {

using namespace Parameter;

/// What the store's project looks like in both file formats.
struct Files {
  QByteArray batch;
  QByteArray project;
};

/// Edits as users make them, drawn by a generator.
class RandomEdits {
public:
  RandomEdits(Manager& store, UndoHistory& history, unsigned seed)
      : store_(store), history_(history), random_(seed) {}

  void edit() {
    switch (upTo(11)) {
    case 0:
      return store_.setCells(ProjectTable::Well, wellCells());
    case 1:
      return setPeriod();
    case 2:
      return setRateOfPeriod();
    case 3:
      store_.setValue(NumberOfWells, upTo(9));
      return;
    case 4:
      store_.setValue(NumberOfDemandsPerYear, 1 + upTo(4));
      return;
    case 5:
      store_.setValue(DefaultWellPosition, QPointF(metres(), metres()));
      return;
    case 6:
      return editTogether();
    case 7:
      return drag();
    case 8:
      return store_.giveAllPlaces();
    case 9:
      return store_.resizePeriods(1 + upTo(4));
    default:
      setAnyValue();
    }
  }

private:
  int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
  double metres() { return std::uniform_real_distribution<double>(-500, 500)(random_); }

  QVariant anyValueOf(const ParameterRow& row) {
    switch (row.kind) {
    case ParameterKind::Text:
    case ParameterKind::Heading:
      return upTo(3) == 0 ? QString() : QString("Text %1 é").arg(upTo(1000));
    case ParameterKind::Flag:
      return upTo(1) == 1;
    default:
      break;
    }
    const double number = std::uniform_real_distribution<double>(0, 20)(random_);
    switch (upTo(3)) {
    case 0:
      return QString::number(number);
    case 1:
      return upTo(20);
    default:
      return number;
    }
  }

  void setAnyValue() {
    const int id = upTo(Parameter::Count - 1);
    // The counts have edits of their own; the language is not undone, and the flag starts a run.
    for (const int other : {NumberOfWells, NumberOfWellsProvided, NumberOfDemandsPerYear,
                            DefaultWellPosition, GuiLanguage, SimulationUpToDate})
      if (id == other)
        return setAnyValue();
    const bool isReference = id == AquiferMaterial || id == BuildingType || id == ClosestLocation;
    store_.setValue(id, isReference ? QVariant(upTo(3)) : anyValueOf(parameterRow(id)));
  }

  std::vector<TableCell> wellCells() {
    std::vector<TableCell> cells;
    for (int cell = 0; cell <= upTo(5); ++cell) {
      const int row = upTo(5);
      const int column = upTo(WellColumns::ColumnCount - 1);
      cells.push_back({row, column,
                       column == WellColumns::Name ? QVariant(QString("Well %1").arg(upTo(99)))
                                                   : QVariant(metres() / 1000)});
    }
    return cells;
  }

  void setPeriod() {
    DemandModel& periods = *store_.demandModel();
    periods.setData(periods.index(upTo(4), 0), 1000.0 * upTo(9000));
  }

  void setRateOfPeriod() {
    WellDemandModel& rates = *store_.wellDemandModel();
    const int column = upTo(1) ? WellDemandModel::Rate : WellDemandModel::TemperatureChange;
    rates.setData(rates.index(upTo(std::max(rates.rowCount() - 1, 0)), column), metres() / 1e5);
  }

  void editTogether() {
    const UserStep step(store_, "Together");
    for (int edits = 0; edits <= upTo(3); ++edits)
      setAnyValue();
    store_.setCells(ProjectTable::Well, wellCells());
  }

  void drag() {
    const int well = upTo(3);
    for (int moves = 0; moves <= upTo(6); ++moves) {
      const UserStep step(store_, StepName{.text = "Move wells", .goesOn = true});
      store_.setCells(ProjectTable::Well,
                      {{well, WellColumns::X, metres()}, {well, WellColumns::Y, metres()}});
    }
    history_.endAction();
  }

  Manager& store_;
  UndoHistory& history_;
  std::mt19937 random_;
};

class UndoSequenceTest : public UndoTest, public testing::WithParamInterface<unsigned> {
protected:
  static constexpr int edits = 200;

  /// Writing makes tables too, which is taken back.
  Files files() {
    const Project project = store.project();
    Files files{bytes("project.tbat"), bytes("project.tvr")};
    store.setProject(project);
    return files;
  }

  QByteArray bytes(const QString& name) {
    EXPECT_TRUE(store.write(path(name), nullptr, {}));
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  void expectFiles(const Files& expected) {
    const Files present = files();
    EXPECT_EQ(present.batch.toStdString(), expected.batch.toStdString());
    EXPECT_EQ(present.project.toStdString(), expected.project.toStdString());
  }

  /// Makes random edits and undoes, redoes and undoes them all.
  void expectThereAndBack() {
    const Files first = files();
    history.clear();
    RandomEdits random(store, history, GetParam());
    for (int edit = 0; edit < edits; ++edit)
      random.edit();
    ASSERT_GT(history.size(), static_cast<std::size_t>(edits / 2));
    const Project lastProject = store.project();
    const Files last = filesWithoutStep();
    ASSERT_NE(last.project, first.project);
    undoAll();
    expectFilesWithoutStep(first);
    redoAll();
    EXPECT_TRUE(store.project() == lastProject);
    expectFilesWithoutStep(last);
    undoAll();
    expectFilesWithoutStep(first);
  }

  /// The history forgets at another project, so it must not hear of this one.
  Files filesWithoutStep() {
    const UserStep step(store, "Write and put back");
    return files();
  }
  void expectFilesWithoutStep(const Files& expected) {
    const UserStep step(store, "Write and put back");
    expectFiles(expected);
  }
};

TEST_P(UndoSequenceTest, leadsBackToANewProjectAndForthAgain) {
  expectThereAndBack();
}

TEST_P(UndoSequenceTest, leadsBackToAProjectWithWellsAndPeriodsAndForthAgain) {
  read("[hydraulic]\nkf=\"0.0030\"\n[installation]\nnumber_of_wells=4\n"
       "number_of_demands_per_year=2\ndemand_model\\1\\0=1e7\ndemand_model\\2\\0=2.1536e7\n"
       "demand_model\\size=2\nwell_model\\1\\1=10\nwell_model\\1\\2=20\nwell_model\\1\\3=-0.01\n"
       "well_model\\2\\1=80\nwell_model\\2\\2=20\nwell_model\\2\\3=0.01\nwell_model\\size=2\n");
  store.wellDemandModel();
  expectThereAndBack();
}

TEST_P(UndoSequenceTest, anyWalkThroughTheStepsMeetsTheSameProjects) {
  RandomEdits random(store, history, GetParam());
  std::vector<Project> projects{store.project()};
  while (projects.size() <= edits) {
    const std::size_t steps = history.size();
    random.edit();
    if (history.size() == steps)
      projects.back() = store.project(); // went with the step before
    else
      projects.push_back(store.project());
    ASSERT_EQ(history.size(), projects.size() - 1);
  }
  std::mt19937 walk(GetParam());
  std::size_t position = history.size();
  for (int step = 0; step < 3 * edits; ++step) {
    const bool back = std::uniform_int_distribution<int>(0, 1)(walk) == 0;
    if (back ? !history.canUndo() : !history.canRedo())
      continue;
    back ? history.undo() : history.redo();
    position += back ? -1 : 1;
    ASSERT_TRUE(store.project() == projects[position]) << position;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, UndoSequenceTest, testing::Values(1U, 7U, 42U, 1234U, 99991U));

} // namespace
} // namespace TVR::Data
