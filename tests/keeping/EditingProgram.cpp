#include "keeping/EditedState.h"
#include "page/painting/PageExport.h"
#include "page/window/GraphicsLibrary.h"
#include "page/window/PageWindow.h"
#include "plugin/ProjectDocument.h"
#include "plugin/TVRPlugin.h"
#include "plugin/TestHost.h"
#include "results/DrawingExport.h"
#include "support/BatchProject.h"
#include "support/EventWait.h"

#include <QApplication>
#include <QFileInfo>
#include <QMainWindow>

#include <random>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

constexpr std::chrono::milliseconds interval(50);

/// A user who edits, saves, runs and exports a project in turns that a seed decides, until the
/// program is killed. A log beside the project says how far each turn came.
class Editing {
public:
  Editing(const QString& directory, unsigned seed, int firstState)
      : directory_(directory), turns_(seed), state_(firstState), log_(directory + "/log") {
    if (!log_.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
      qFatal("no log");
    host_.library = &pages_;
    host_.main = &main_;
    plugin_.setAppInterface(&host_);
    plugin_.document().autosave().setInterval(interval);
    open();
  }

  [[noreturn]] void goOn() {
    using Turn = void (Editing::*)();
    constexpr Turn turns[] = {&Editing::edit, &Editing::edit, &Editing::edit, &Editing::keep,
                              &Editing::save, &Editing::save, &Editing::run,  &Editing::write};
    std::uniform_int_distribution<std::size_t> choose(0, std::size(turns) - 1);
    edit();
    for (;;) {
      (this->*turns[choose(turns_)])();
      QCoreApplication::processEvents();
    }
  }

private:
  void log(const char* what) {
    log_.write(QStringLiteral("%1 %2\n").arg(what).arg(state_).toUtf8());
  }

  void open() {
    const QString start = directory_ + "/start.tbat";
    if (QFileInfo::exists(file()))
      plugin_.load(file());
    else if (BatchProject::doublet().write(start))
      plugin_.load(start);
    store_.setValue(MinElementLength, 8.0);
    log("ready");
  }

  void edit() {
    ++state_;
    EditedState::type(store_, state_);
    log("edited");
  }
  void keep() {
    if (plugin_.document().autosave().keepNow())
      log("kept");
  }
  void save() {
    log("saving");
    plugin_.save(file());
    log("saved");
  }
  void run() {
    plugin_.startSimulation();
    log("kept"); // before the run
    waitUntil([this] { return !plugin_.simulationRun().simulation(); });
  }
  void write() {
    DrawingExport(plugin_.resultGraphic().access()).write(directory_ + "/drawing.dxf");
    if (auto* const page = dynamic_cast<Page::PageWindow*>(host_.active))
      Page::exportPage(page->canvas(), directory_ + "/page.png");
  }
  QString file() const { return directory_ + "/project.tvr"; }

  const QString directory_;
  std::mt19937 turns_;
  int state_;
  QFile log_;
  QMainWindow main_;
  Host host_;
  Page::GraphicsLibrary pages_{host_};
  TVRPlugin plugin_;
  Data::Manager& store_ = *Data::Manager::instance();
};

} // namespace

/// Arguments: the directory of the project, a seed, the number of the state to go on from.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 4)
    return 2;
  Editing(arguments[1], arguments[2].toUInt(), arguments[3].toInt()).goOn();
}
