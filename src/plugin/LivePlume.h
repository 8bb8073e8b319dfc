#pragma once

#include "gui/editor/PropertyEdits.h"
#include "simulation/RunObserver.h"

#include <QObject>
#include <QPointer>
#include <QThreadPool>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace TVR {

namespace Data {
class Manager;
}

namespace GUI {
class DesignPropertyEditor;
}

class PreviewRun;
class ResultGraphic;
class SimulationRun;
struct IsothermChoice;

/// Shows on the page of the project what a run would come to after some edits, while they are being
/// made: after a moment of rest a copy of the project is run in the background, coarsely at first
/// where it is large, and drawn as a preview. Neither the project nor its page hear of it. Lives on
/// the main thread.
class LivePlume : public QObject, private RunObserver {
  Q_OBJECT

public:
  /// How long edits rest before they are run [ms].
  static constexpr int restTime = 200;

  /// All three outlive this object.
  LivePlume(const Data::Manager& store, SimulationRun& run, ResultGraphic& graphic,
            QObject* parent = nullptr);
  ~LivePlume() override;

  /// Previews what is typed in the panel from now on.
  void follow(const GUI::DesignPropertyEditor& panel);
  /// Previews the project with all of these edits. What was previewed before is stale: its run
  /// ends, and what is shown of it stays until there is something newer. A change of the project
  /// itself makes the preview anew, with the same edits. Without a page nothing is run.
  void preview(const GUI::PropertyEdits& edits);
  /// Ends the preview, whose run is no longer waited for; the page shows itself again. A run of the
  /// project ends it too.
  void end();
  /// Whether a preview is being computed.
  bool isComputing() const { return current_ != nullptr; }

signals:
  /// Something new of the last edits is shown; nothing follows if it is the last.
  void shown(bool isLast);

private:
  struct Outcome;

  void initialising(const RunRequest& request) override;
  void failed(double /*time*/, const QString& /*text*/) override { runEnded(); }
  void abandoned() override { runEnded(); }
  void finished(const RunSummary& /*summary*/) override { runEnded(); }
  void runEnded();
  void makeStale();
  void start();
  void run(const std::shared_ptr<PreviewRun>& run, const IsothermChoice& isotherms);
  void take(const std::shared_ptr<PreviewRun>& run, const Outcome& outcome);
  void showOnPage(const Outcome& outcome);
  void endOnPage();

  const Data::Manager& store_;
  SimulationRun& run_;
  ResultGraphic& graphic_;
  GUI::PropertyEdits edits_;
  bool isOn_ = false;
  QTimer rest_;
  std::shared_ptr<PreviewRun> current_; ///< whose results are waited for; null for none
  QPointer<QWidget> window_;            ///< that shows the preview
  QThreadPool thread_;                  ///< one, that runs the previews
};

} // namespace TVR
