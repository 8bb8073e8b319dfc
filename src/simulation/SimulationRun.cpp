#include "simulation/SimulationRun.h"

#include "design/ParameterId.h"
#include "project/ProjectTarget.h"
#include "simulation/PageSolves.h"
#include "simulation/ResultCheck.h"
#include "simulation/Simulation.h"
#include "simulation/SimulationThread.h"
#include "simulation/SiteWriteBack.h"
#include "simulator/models/FVGeothermSite.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEvent>

#include <algorithm>
#include <mutex>

namespace TVR {

using namespace Parameter;

namespace {

/// Lowers a flag when the scope ends, by an exception too.
class Lowered {
public:
  explicit Lowered(bool& flag) : flag_(flag) {}
  Lowered(const Lowered&) = delete;
  Lowered& operator=(const Lowered&) = delete;
  ~Lowered() { flag_ = false; }

private:
  bool& flag_;
};

} // namespace

SimulationRun::SimulationRun(ProjectTarget& project, std::function<QString()> dataDirectory,
                             QObject* parent)
    : QObject(parent), project_(project), dataDirectory_(std::move(dataDirectory)) {}

SimulationRun::~SimulationRun() {
  discardSimulation();
}

void SimulationRun::discardSimulation() {
  Simulation* const simulation = simulation_;
  setSimulation(nullptr);
  auto* thread = simulation ? qobject_cast<SimulationThread*>(simulation->parent()) : nullptr;
  if (thread) {
    // It may be waiting for this object to take a step: let it go before it is waited for.
    disconnect(simulation, nullptr, this, nullptr);
    thread->setFinished();
    while (!thread->wait(10))
      QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
    delete thread;
  } else {
    delete simulation;
  }
}

/// Before a simulation is deleted nobody else may find it any more.
void SimulationRun::setSimulation(Simulation* simulation) {
  const std::lock_guard lock(simulationMutex_);
  simulation_ = simulation;
  if (simulation_ && abandoned_)
    simulation_->stop();
}

void SimulationRun::abandon() {
  const std::lock_guard lock(simulationMutex_);
  abandoned_ = true;
  if (simulation_)
    simulation_->stop();
}

void SimulationRun::endIfAbandoned() const {
  if (abandoned_)
    throw RunAbandoned();
}

void SimulationRun::addObserver(RunObserver* observer) {
  observers_.push_back(observer);
}

void SimulationRun::removeObserver(RunObserver* observer) {
  std::erase(observers_, observer);
}

void SimulationRun::tell(const std::function<void(RunObserver&)>& event) const {
  for (RunObserver* observer : observers_)
    event(*observer);
}

double SimulationRun::timeOfSimulationStep(int step) {
  if (step >= 0) {
    const auto index = static_cast<std::size_t>(step) - 1;
    return running_ && index < outputTimes_.times.size() ? outputTimes_.times[index] : -1.0;
  }
  makeTables(project_);
  logSettings();
  outputTimes_ = TVR::outputTimes(outputTimeInput(project_, cycleLength_));
  tell([](RunObserver& observer) { observer.outputTimesMade(); });
  return -1.0;
}

void SimulationRun::logSettings() const {
  qDebug() << "TVR::exchange_bedrock: " << project_.flag(ExchangeBedrock);
  qDebug() << "TVR::exchange_caprock: " << project_.flag(ExchangeCaprock);
  qDebug() << "TVR::beta_T: " << project_.number(ThermalDispersivity);
  qDebug() << "Data::Manager::demandModel()->rowCount(): " << project_.periods().size();
  qDebug() << "TVR::exchange_bedrock: " << project_.flag(ExchangeBedrock);
  qDebug() << "TVR::wells_used_closed_loop: " << project_.flag(ClosedLoop);
}

bool SimulationRun::writesTecplot() const {
  return project_.flag(WriteTecplotOutput);
}

bool SimulationRun::run(const RunRequest& request) {
  if (request.isInteractive && simulation_)
    return false;
  tell([&](RunObserver& observer) { observer.initialising(request); });
  timeOfSimulationStep(-1);
  request_ = request;
  if (request_.isInteractive)
    requireTimes(outputTimes_);
  setup_ = setUpSite(project_, outputTimes_);
  setup_->input.linearSolver = request_.linearSolver;
  if (request_.otherMesh)
    *setup_->mesh = request_.otherMesh(*setup_->mesh, setup_->wells);
  setup_->frame.cycleLength = cycleLength_;
  project_.setResultFrame(setup_->frame);

  if (isBatch()) {
    discardSimulation();
    qDebug() << "Simulation: started on main thread";
    setSimulation(new Simulation(setup_->input, this));
  } else {
    qDebug() << "Simulation: started on a thread";
    startThread();
  }
  if (writesTecplot())
    tell([this](RunObserver& observer) { observer.beginCellTables(*setup_->mesh); });

  const RunStart start{setup_->mesh->nx * setup_->mesh->ny,
                       static_cast<int>(outputTimes_.times.size()),
                       project_.number(SimulationTime)};
  tell([&](RunObserver& observer) { observer.starting(start); });
  running_ = true;
  if (isBatch())
    runBatch();
  else
    startInteractively();
  return true;
}

void SimulationRun::runBatch() {
  const Lowered running(running_);
  FVGeothermSite& model = *simulation_->model();
  const Tolerances& tolerances = setup_->tolerances;
  const int count = static_cast<int>(outputTimes_.times.size());
  if (setup_->hasPeriods)
    model.setDemandStep(0);
  for (int step = 1; step <= count; ++step) {
    const double t = timeOfSimulationStep(step);
    if (setup_->hasPeriods)
      model.setDemandStep(outputTimes_.demandSteps[step - 1]);
    model.solveGroundwater(t, tolerances.relativeGroundwater, tolerances.absoluteGroundwater);
    endIfAbandoned();
    model.solveHeat(t, true, tolerances.relativeHeat, tolerances.absoluteHeat);
    endIfAbandoned();
    if (writesTecplot())
      simulation_->writeTecplotFrame(tecplotStream_);
    const RunStep reached{step - 1, count, t, *simulation_};
    tell([&](RunObserver& observer) { observer.stepReached(reached); });
  }
  endIfAbandoned();
  simulationFinishedSuccessful();
}

void SimulationRun::startThread() {
  auto* thread = new SimulationThread(setup_->input, this);
  connect(thread, &QThread::finished, thread, &QObject::deleteLater);
  setSimulation(thread->simulation());
}

void SimulationRun::startInteractively() {
  tell([](RunObserver& observer) { observer.setOff(); });
  // Blocking: the run stands still while the reader takes a step.
  connect(simulation_, &Simulation::finished, this, &SimulationRun::simulationStepFinished,
          Qt::BlockingQueuedConnection);
  startOnPage(*simulation_, *setup_);
}

void SimulationRun::simulationStepFinished(int step, int type, bool error, bool last) {
  if (!simulation_)
    return;
  const auto& times = outputTimes_.times;
  const auto index = std::min<std::size_t>(step, times.size() - 1);
  if (error) {
    const QString text = simulation_->errorText();
    tell([&](RunObserver& observer) { observer.failed(times[index], text); });
    running_ = false;
    simulation_->stop();
    if (writesTecplot())
      tecplotStream_.close();
    releaseSimulation();
    return;
  }
  if (last) {
    simulationFinishedSuccessful();
    return;
  }
  const std::unique_lock handOver(stepMutex_, std::try_to_lock);
  if (!handOver)
    return;
  const RunStep reached{static_cast<int>(index), static_cast<int>(times.size()), times[index],
                        *simulation_};
  if (writesTecplot())
    tell([&](RunObserver& observer) { observer.continueCellTables(reached); });
  tell([&](RunObserver& observer) { observer.stepReached(reached); });
  if (type == Simulation::GroundwaterOnly || type == Simulation::Coupled)
    tell([&](RunObserver& observer) { observer.drawdownsReached(reached); });
  if (type == Simulation::HeatOnly || type == Simulation::Coupled)
    tell([&](RunObserver& observer) { observer.temperaturesReached(reached); });
  simulation_->done(true);
}

/// Where the table goes, if it is wanted: the project has a say in an interactive run only.
std::optional<QString> SimulationRun::tableFile() const {
  if (!request_.wantsTable)
    return std::nullopt;
  if (!request_.tableFile.isEmpty())
    return request_.tableFile;
  if (request_.isInteractive && !project_.flag(WriteWellOutput))
    return std::nullopt;
  const QString batchName = project_.text(BatchOutputFile);
  if (isBatch() && !batchName.isEmpty())
    return batchName;
  const QString name = project_.text(WellOutputFile);
  return name.isEmpty() ? dataDirectory_() + "/temperature.xml" : name;
}

RunResults SimulationRun::results() const {
  const std::vector<double>& times = outputTimes_.times;
  return {*simulation_, outputTimes_,
          !running_ && !times.empty() && times.back() > simulation_->currentTime()};
}

void SimulationRun::simulationFinishedSuccessful() {
  if (!simulation_)
    return;
  simulation_->stop();
  if (abandoned_) {
    endAbandoned();
    return;
  }
  const WellReader wells = project_.wells();
  std::vector<WellHistory> histories =
      wellHistories(simulation_->wells(), [&wells](int row) { return wells.name(row); });
  if (const QString fault = temperatureFault(setup_->input, *simulation_, histories);
      !fault.isEmpty()) {
    refuseResult(fault);
    return;
  }
  tell([this](RunObserver& observer) { observer.resultsReached(results()); });
  RunSummary result = summary();
  for (const WellHistory& well : histories) {
    const auto [lowest, highest] =
        std::minmax_element(well.temperatures.begin(), well.temperatures.end());
    if (lowest != well.temperatures.end())
      result.wells.push_back({well.name, *lowest, *highest});
  }
  if (const auto file = tableFile()) {
    result.tableFile = *file;
    result.tableWritten = writeWellTemperatureTable(*file, histories, request_.tableNamedBy);
  }
  result.histories = std::move(histories);
  tell([this](RunObserver& observer) { observer.completing(results()); });
  running_ = false;
  simulation_->done(true);
  releaseSimulation();
  tell([&](RunObserver& observer) { observer.finished(result); });
}

void SimulationRun::refuseResult(const QString& fault) {
  const double time = simulation_->currentTime();
  running_ = false;
  simulation_->done(true);
  releaseSimulation();
  if (isBatch())
    throw ResultError(fault.toStdString());
  // What observers are told may hold markup, and names of wells are none.
  tell([&](RunObserver& observer) { observer.failed(time, fault.toHtmlEscaped()); });
}

void SimulationRun::endAbandoned() {
  running_ = false;
  simulation_->done(true);
  releaseSimulation();
  tell([](RunObserver& observer) { observer.abandoned(); });
}

RunSummary SimulationRun::summary() const {
  RunSummary result;
  result.cells = setup_->mesh->nx * setup_->mesh->ny;
  result.outputTimes = static_cast<int>(outputTimes_.times.size());
  result.groundwaterSteps = simulation_->model()->groundwaterSteps();
  result.heatSteps = simulation_->model()->heatSteps();
  return result;
}

void SimulationRun::releaseSimulation() {
  Simulation* const simulation = simulation_;
  setSimulation(nullptr);
  if (auto* thread = qobject_cast<SimulationThread*>(simulation->parent())) {
    thread->setFinished();
    thread->quit();
  } else if (isBatch()) {
    delete simulation;
  }
}

void SimulationRun::stop() {
  if (!simulation_)
    return;
  simulation_->stop();
  running_ = false;
}

} // namespace TVR
