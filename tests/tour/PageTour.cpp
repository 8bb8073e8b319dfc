#include "tour/PageTour.h"

#include "boxes/MessageBoxes.h"
#include "design/ParameterId.h"
#include "gui/ProjectWizards.h"
#include "messages/Messenger.h"
#include "store/Manager.h"
#include "support/ProgramLanguage.h"
#include "tables/WellModel.h"
#include "tour/WindowGuide.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QWizard>

#include <stdexcept>

namespace TVR::Test {
namespace {

using namespace Parameter;
using Data::Manager;

/// A file of pictures with a name that is longer than there is room for it.
class LongNamedPicture {
public:
  LongNamedPicture() {
    QImage picture(240, 120, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    picture.save(fileName());
  }
  QString fileName() const {
    return directory_.filePath("a background map of the whole valley with all its wells.png");
  }

private:
  const QTemporaryDir directory_;
};

/// What a page shows under certain conditions.
struct State {
  QString name;                                ///< empty for the usual one
  std::function<void(Manager& store)> prepare; ///< before the page is entered; may be empty
  std::function<void(QWizardPage& page)> act;  ///< on the page; may be empty
};

template <class Widget>
Widget& in(QWizardPage& page, const char* name) {
  auto* const widget = page.findChild<Widget*>(name);
  if (!widget)
    throw std::logic_error(std::string("a page has no ") + name);
  return *widget;
}

void click(QWizardPage& page, const char* button) {
  in<QAbstractButton>(page, button).click();
}

bool isUsable(const QWidget& widget) {
  return widget.isVisible() && widget.isEnabled();
}

/// Turns on whatever check mark or choice is off.
void turnAllOn(QWizardPage& page) {
  QVector<QAbstractButton*> buttons;
  for (auto* const button : page.findChildren<QAbstractButton*>())
    if (button->isCheckable() && !button->isChecked() && isUsable(*button))
      buttons << button;
  for (auto* const group : page.findChildren<QGroupBox*>())
    if (group->isCheckable() && !group->isChecked() && isUsable(*group))
      group->setChecked(true);
  for (QAbstractButton* const button : buttons)
    if (!button->isChecked())
      button->click();
}

void emptyAll(QWizardPage& page) {
  for (auto* const edit : page.findChildren<QLineEdit*>())
    if (isUsable(*edit))
      edit->clear();
}

void divideYear(Manager& store) {
  constexpr int seasons = 4;
  store.setValue(NumberOfDemandsPerYear, seasons);
  store.resizePeriods(seasons);
}

void setRates(Manager& store, const std::function<double(int well)>& rate) {
  std::vector<TableCell> cells;
  for (int well = 0; well < store.wellModel()->rowCount(); ++well)
    cells.push_back({well, WellColumns::Rate, rate(well)});
  store.setCells(ProjectTable::Well, cells);
}

void chooseFirstWell(QWizardPage& page) {
  auto& wells = in<QTableView>(page, "tableOfWellPositions");
  wells.setCurrentIndex(wells.model()->index(0, 0));
}

/// The states of the page that places wells.
QVector<State> statesOfWells() {
  return {
      {"extended", {}, [](QWizardPage& page) { click(page, "extendPushButton"); }},
      {"periods", divideYear, chooseFirstWell},
      {"many_wells", [](Manager& store) { store.setValue(NumberOfWells, 40); }, {}},
      {"even_rates",
       [](Manager& store) {
         const double even = store.number(MeanFlowRate) * 2 / store.number(NumberOfWells);
         setRates(store, [even](int) { return even; });
       },
       {}},
      {"odd_rates",
       [](Manager& store) {
         setRates(store, [](int well) { return well % 2 == 0 ? -1e-5 : 2.5e-5; });
       },
       {}},
      {"placed_by_hand",
       [](Manager& store) {
         store.setValue(RadiusOfInfluence, 40.0);
         store.setCells(ProjectTable::Well, {{0, WellColumns::X, 12.5}});
       },
       [](QWizardPage& page) { click(page, "placeWellsButton"); }},
  };
}

/// The states of a page beside those that all have.
QVector<State> furtherStates(const QString& page, const QString& picture) {
  const QMap<QString, QVector<State>> states = {
      {"User", {{"logo", [picture](Manager& store) { store.setValue(UserLogo, picture); }, {}}}},
      {"Mapping",
       {{"picture",
         [picture](Manager& store) {
           store.setValue(BackgroundImage, true);
           store.setValue(BackgroundImageFile, picture);
         },
         {}}}},
      {"EnergyDemandResult",
       {{"cooling", [](Manager& store) { store.setStored(EnergyDemandType, 2); }, {}}}},
      {"AquiferAndWellSummary",
       {{"too_many_wells", [](Manager& store) { store.setStored(NumberOfWells, 1200); }, {}}}},
      {"ProvidedWells",
       {{"provided",
         [](Manager& store) {
           store.setValue(CalculateWellConstruction, false);
           store.setValue(SuperposeDrawdown, true); // and so the configuration is checked
           store.setValue(MaximumFlowRate, 0.5);    // [m3/s]
           store.setValue(FilterDiameterProvided, 20.0);
           store.setValue(FilterLengthProvided, 1.0);
         },
         {}}}},
      {"WellPositionAndUsage", statesOfWells()}};
  return states.value(page);
}

/// Scrolls to the end of a page that is longer than there is room for. Whether it is.
bool scrollDown(QWizardPage& page) {
  const auto areas = page.findChildren<QScrollArea*>();
  bool isLonger = false;
  for (const QScrollArea* const area : areas) {
    QScrollBar& bar = *area->verticalScrollBar();
    isLonger = isLonger || (area->isVisible() && bar.maximum() > 0);
    bar.setValue(bar.maximum());
  }
  settle();
  return isLonger;
}

/// "User" of TVR::GUI::UserWizardPage.
QString shortName(const QWizardPage& page) {
  QString name = page.metaObject()->className();
  return name.remove("TVR::GUI::").remove("WizardPage");
}

class PageTour {
public:
  PageTour(QWizard& wizard, const Visit& visit)
      : wizard_(wizard), visit_(visit), guide_(wizard, visit) {}

  void visitAll() {
    for (const int id : wizard_.pageIds()) {
      const QString page = shortName(*wizard_.page(id));
      QVector<State> states = {{"", {}, {}}, {"turned", {}, turnAllOn}, {"empty", {}, emptyAll}};
      states += furtherStates(page, picture_.fileName());
      for (const State& state : states)
        visitState(id, state);
    }
  }

private:
  void visitState(int id, const State& state) {
    store_.setProject(site_);
    if (state.prepare)
      state.prepare(store_);
    wizard_.setStartId(id);
    QWizardPage& page = *wizard_.page(id);
    // The page that is left on the way back asks whether to keep what it took.
    guide_.go(name_ + "_back", [this] { wizard_.restart(); });
    name_ = "page_" + shortName(page) + (state.name.isEmpty() ? "" : "_" + state.name);
    wizard_.show();
    if (state.act)
      guide_.go(name_ + "_asks", [&] { state.act(page); });
    settle();
    visit_(name_, wizard_);
    if (scrollDown(page))
      visit_(name_ + "_below", wizard_);
    bool isTaken = true;
    guide_.go(name_ + "_on", [&] { isTaken = wizard_.validateCurrentPage(); });
    settle();
    if (!isTaken)
      visit_(name_ + "_refused", wizard_);
  }

  QWizard& wizard_;
  const Visit& visit_;
  WindowGuide guide_;
  const LongNamedPicture picture_;
  Manager& store_ = *Manager::instance();
  const Project site_ = store_.project();
  QString name_; ///< of the state that is shown
};

} // namespace

void tourOfPages(const QString& language, const QString& project, const Visit& visit) {
  const ProgramLanguage texts(language);
  MessageBoxes boxes;
  setMessenger(&boxes);
  Manager& store = *Manager::instance();
  QMap<QString, int> fieldIds;
  if (!store.read(project, fieldIds))
    throw std::runtime_error("the project of the tour cannot be read");
  store.setValue(GuiLanguage, language);
  const std::unique_ptr<QWizard> wizard = GUI::makeWizard(
      GUI::Wizard::NewProject, GUI::projectPages(store, [] { return nullptr; }), {});
  PageTour(*wizard, visit).visitAll();
  setMessenger(nullptr);
  store.reset();
}

} // namespace TVR::Test
