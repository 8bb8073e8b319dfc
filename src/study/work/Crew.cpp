#include "study/work/Crew.h"

#include <QTimer>

#include <algorithm>

namespace TVR::Study {

namespace {

/// Runs that a worker has: one under way, and enough behind it that it never waits.
constexpr std::size_t runsAhead = 3;
/// So many workers in a row that never get ready are no accident.
constexpr int mostFruitless = 8;
constexpr int watchInterval = 100; // [ms]

} // namespace

Crew::Crew(CrewSettings settings, CrewWork work)
    : settings_(std::move(settings)), work_(std::move(work)) {}

QString Crew::run() {
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [this] { killLateOnes(); });
  watch.start(watchInterval);
  for (int i = 0; i < settings_.workers; ++i)
    startWorker();
  if (!workers_.empty())
    loop_.exec();
  workers_.clear();
  return reason_;
}

void Crew::stop() {
  QMetaObject::invokeMethod(&loop_, "quit", Qt::QueuedConnection);
}

void Crew::end(const QString& reason) {
  reason_ = reason;
  loop_.quit();
}

void Crew::startWorker() {
  const std::optional<WorkerRun> run = nextRun();
  if (!run)
    return;
  workers_.push_back(std::make_unique<WorkerProcess>(
      settings_.program, settings_.task,
      WorkerProcess::Events{
          [this](WorkerProcess& worker, const QByteArray& line) { return take(worker, line); },
          [this] { feedAll(); },
          // Whoever tells of its end can't be deleted on the spot.
          [this] {
            QMetaObject::invokeMethod(
                &loop_, [this] { replaceEnded(); }, Qt::QueuedConnection);
          }}));
  workers_.back()->give(*run);
  feed(*workers_.back());
}

std::optional<WorkerRun> Crew::nextRun() {
  if (again_.empty())
    return work_.next();
  const WorkerRun run = again_.front();
  again_.pop_front();
  return run;
}

void Crew::feed(WorkerProcess& worker) {
  while (worker.runs().size() < runsAhead) {
    const std::optional<WorkerRun> run = nextRun();
    if (!run)
      return;
    worker.give(*run);
  }
}

void Crew::feedAll() {
  for (const auto& worker : workers_)
    if (!worker->hasEnded())
      feed(*worker);
  const bool isDone = std::all_of(workers_.begin(), workers_.end(),
                                  [](const auto& worker) { return worker->runs().empty(); });
  if (isDone && again_.empty())
    loop_.quit();
}

bool Crew::take(WorkerProcess& worker, const QByteArray& line) {
  const std::optional<Record> record = recordFromLine(line, settings_.task.layout);
  const WorkerRun& run = worker.runs().front();
  if (const auto fault = record ? std::nullopt : faultFromLine(line))
    end(*fault);
  if (!record || record->run != run.name)
    return false;
  if (record->hasFailed() && isFirstFailure(run))
    again_.push_back(run);
  else
    hand(*record, line);
  return true;
}

bool Crew::isFirstFailure(const WorkerRun& run) {
  const bool isFirst = !failed_.contains(run.name);
  failed_.insert(run.name);
  return isFirst;
}

void Crew::hand(const Record& record, const QByteArray& line) {
  if (!work_.done(record, line))
    end(QStringLiteral("what was computed can't be written"));
}

void Crew::replaceEnded() {
  int ended = 0;
  for (auto worker = workers_.begin(); worker != workers_.end();) {
    if ((*worker)->hasEnded()) {
      takeEnd(**worker);
      worker = workers_.erase(worker);
      ++ended;
    } else {
      ++worker;
    }
  }
  if (!reason_.isEmpty())
    return;
  for (; ended > 0; --ended)
    startWorker();
  feedAll();
}

void Crew::takeEnd(const WorkerProcess& worker) {
  const std::deque<WorkerRun>& runs = worker.runs();
  again_.insert(again_.begin(), runs.begin(), runs.end());
  fruitless_ = worker.isReady() ? 0 : fruitless_ + 1;
  if (fruitless_ >= mostFruitless)
    end(QStringLiteral("one worker after the other ended before its first run: %1")
            .arg(worker.reason()));
  if (!worker.isReady() || runs.empty() || isFirstFailure(runs.front()))
    return;
  again_.pop_front();
  Record record;
  record.run = runs.front().name;
  record.values = runs.front().values;
  record.failure = worker.reason();
  hand(record, toLine(record, true));
}

void Crew::killLateOnes() {
  for (const auto& worker : workers_)
    if (static_cast<double>(worker->elapsed()) > settings_.timeLimit * 1000)
      worker->kill(QStringLiteral("took longer than %1 s").arg(settings_.timeLimit));
}

} // namespace TVR::Study
