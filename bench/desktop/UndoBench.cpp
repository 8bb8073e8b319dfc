#include "design/ParameterId.h"
#include "store/Manager.h"
#include "store/UndoHistory.h"
#include "tables/WellModel.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <malloc.h>

#include <cstdio>
#include <limits>
#include <vector>

namespace {

using namespace TVR;
using namespace TVR::Parameter;

constexpr int edits = 200;

double megabytes(qint64 bytes) {
  return static_cast<double>(bytes) / 1024 / 1024;
}

qint64 heap() {
  return static_cast<qint64>(mallinfo2().uordblks);
}

/// What an engineer does to a project, in turn: values of the aquifer, the demand, a well that is
/// moved, its rate, a period, the view and a text.
void edit(Data::Manager& store, int number) {
  const int well = number % store.wellModel()->rowCount();
  const double factor = 1 + 0.01 * (number % 17);
  switch (number % 10) {
  case 0:
    return void(store.setValue(HydraulicConductivity, 0.001 * factor));
  case 1:
    return void(store.setValue(AquiferThickness, 12 * factor));
  case 2:
    return void(store.setValue(GroundwaterGradient, 0.2 * factor));
  case 3:
    return void(store.setValue(EnergyDemand, 40000 * factor));
  case 4:
    return store.setCells(ProjectTable::Well, {{well, WellModel::X, 681000 + 3.0 * number},
                                               {well, WellModel::Y, 227000 + 2.0 * number}});
  case 5:
    return store.setCells(ProjectTable::Well, {{well, WellModel::Rate, 0.001 * factor}});
  case 6:
    return store.setCells(ProjectTable::Demand, {{0, 0, 2e6 * factor}});
  case 7:
    return void(store.setValue(ViewScale, 1000 + number));
  case 8:
    return void(store.setValue(ProjectDescription,
                               QString("<p>Variant %1. ").arg(number) + QString(600, 'x')));
  default:
    return void(store.setValue(SimulationTime, 3e8 * factor));
  }
}

void measure(const char* example) {
  QMap<QString, int> noItems;
  Data::Manager store;
  if (!store.read(example, noItems))
    return void(std::printf("%s cannot be read\n", example));
  store.wellDemandModel();
  const qint64 before = heap();
  Data::UndoHistory history(store, std::numeric_limits<qint64>::max());
  for (int number = 0; number < edits; ++number)
    edit(store, number);
  std::printf("%-34s %3d wells %3d periods %4zu steps  estimated %6.2f MB  heap %6.2f MB\n",
              qPrintable(QFileInfo(example).fileName()), store.wellModel()->rowCount(),
              store.project().durations.size(), history.size(), megabytes(history.bytes()),
              megabytes(heap() - before));
}

} // namespace

/// Prints what the steps to undo take after 200 edits of each batch file that is named.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  for (int argument = 1; argument < argc; ++argument)
    measure(argv[argument]);
}
