#include "plugin/LivePlume.h"

#include "gui/DesignPropertyEditor.h"
#include "messages/PluginText.h"
#include "plugin/LiveSite.h"
#include "plugin/ResultGraphic.h"
#include "results/ResultPreview.h"
#include "simulation/PreviewRun.h"
#include "simulation/SimulationRun.h"
#include "store/Manager.h"

#include <utility>

namespace TVR {

/// What came of a preview, on one of its meshes.
struct LivePlume::Outcome {
  std::shared_ptr<const Sketra_lib::ResultPreview> results; ///< null after a fault
  QString fault;                                            ///< rich text; empty for none
  bool isRefined = false;

  /// Whether nothing better follows.
  bool isLast() const { return !results || isRefined; }
  /// What stands on the page. `isCompared`: the results of the last run are there too.
  QString mark(bool isCompared) const {
    if (!results)
      return PluginText::tr("<b>Preview</b>: %1").arg(fault);
    if (isRefined)
      return isCompared ? PluginText::tr("<b>Preview</b> (dashed: last run)")
                        : PluginText::tr("<b>Preview</b>");
    return isCompared ? PluginText::tr("<b>Preview</b>, is being refined (dashed: last run)")
                      : PluginText::tr("<b>Preview</b>, is being refined");
  }
};

LivePlume::LivePlume(const Data::Manager& store, SimulationRun& run, ResultGraphic& graphic,
                     QObject* parent)
    : QObject(parent), store_(store), run_(run), graphic_(graphic) {
  thread_.setMaxThreadCount(1);
  rest_.setSingleShot(true);
  rest_.setInterval(restTime);
  connect(&rest_, &QTimer::timeout, this, &LivePlume::start);
  connect(&store_, &Data::Manager::dataChanged, this, [this] {
    if (isOn_)
      makeStale();
  });
  run_.addObserver(this);
}

LivePlume::~LivePlume() {
  run_.removeObserver(this);
  end();
  thread_.waitForDone();
}

void LivePlume::follow(const GUI::DesignPropertyEditor& panel) {
  connect(&panel, &GUI::DesignPropertyEditor::liveEdited, this, &LivePlume::preview);
  connect(&panel, &GUI::DesignPropertyEditor::liveEnded, this, &LivePlume::end);
}

void LivePlume::preview(const GUI::PropertyEdits& edits) {
  edits_ = edits;
  isOn_ = true;
  makeStale();
}

void LivePlume::end() {
  isOn_ = false;
  rest_.stop();
  if (current_)
    std::exchange(current_, nullptr)->stop();
  endOnPage();
}

void LivePlume::initialising(const RunRequest& request) {
  Q_UNUSED(request)
  end();
}

/// What was edited while the project itself was run is previewed now.
void LivePlume::runEnded() {
  if (isOn_)
    makeStale();
}

void LivePlume::makeStale() {
  if (current_)
    std::exchange(current_, nullptr)->stop();
  rest_.start();
}

void LivePlume::start() {
  if (!graphic_.windowToSave() || run_.simulation())
    return;
  LiveSite live =
      liveSite(store_, edits_, run_.cycleLength(),
               [this](const ProjectReader& project) { return graphic_.placeOfNewWells(project); });
  current_ = std::make_shared<PreviewRun>(std::move(live.site), std::move(live.outputTimes));
  if (live.fault.isEmpty())
    run(current_, live.isotherms);
  else
    take(current_, {nullptr, live.fault.toHtmlEscaped()});
}

/// Runs in the background. What comes of it is handed to the main thread.
void LivePlume::run(const std::shared_ptr<PreviewRun>& run, const IsothermChoice& isotherms) {
  thread_.start([this, run, isotherms] {
    const auto hand = [this, run](const Outcome& outcome) {
      QMetaObject::invokeMethod(this, [this, run, outcome] { take(run, outcome); });
    };
    const QString fault = run->run([&](const PreviewStage& stage) {
      hand({std::make_shared<const Sketra_lib::ResultPreview>(resultPreview(
                stage.mesh, stage.frame, stage.drawdowns, stage.temperatures, isotherms)),
            {},
            stage.isRefined});
    });
    if (!fault.isEmpty())
      hand({nullptr, fault});
  });
}

/// Late results of a run that is stale are dropped.
void LivePlume::take(const std::shared_ptr<PreviewRun>& run, const Outcome& outcome) {
  if (run != current_)
    return;
  showOnPage(outcome);
  if (outcome.isLast())
    current_.reset();
  emit shown(outcome.isLast());
}

void LivePlume::showOnPage(const Outcome& outcome) {
  Sketra_lib::GraphicsWorkspaceWindow* const page = graphic_.windowToSave();
  QWidget* const widget = page ? page->widget() : nullptr;
  if (widget != window_)
    endOnPage();
  if (auto* const window = qobject_cast<Sketra_lib::PreviewInterface*>(widget)) {
    const PageItems& items = graphic_.items();
    window->showPreview(items.mapView, items.results, outcome.results,
                        outcome.mark(items.results > 0));
    window_ = widget;
  }
}

void LivePlume::endOnPage() {
  if (auto* const window = qobject_cast<Sketra_lib::PreviewInterface*>(window_.data()))
    window->endPreview();
  window_.clear();
}

} // namespace TVR
