#include "gui/EveryPage.h"
#include "support/ProgramLanguage.h"

#include <QComboBox>
#include <QGroupBox>
#include <QSpinBox>
#include <QTableView>

namespace TVR::GUI {
namespace {

using namespace Parameter;

using Texts = QMap<QString, QStringList>; ///< of a widget, by its name

void addFurtherTexts(const QWidget& widget, QStringList& texts) {
  if (const auto* const label = qobject_cast<const QLabel*>(&widget))
    texts << label->text();
  else if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
    texts << button->text();
  else if (const auto* const group = qobject_cast<const QGroupBox*>(&widget))
    texts << group->title();
  else if (const auto* const box = qobject_cast<const QComboBox*>(&widget))
    for (int item = 0; item < box->count(); ++item)
      texts << box->itemText(item);
  else if (const auto* const view = qobject_cast<const QTableView*>(&widget))
    for (int column = 0; column < view->model()->columnCount(); ++column)
      texts << view->model()->headerData(column, Qt::Horizontal).toString();
  for (const QAction* const action : widget.actions())
    texts << action->text();
}

Texts textsOf(const QWizardPage& page) {
  Texts all;
  for (const QWidget* const widget : page.findChildren<QWidget*>()) {
    if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"))
      continue;
    QStringList& texts = all[widget->objectName()];
    texts << widget->toolTip() << widget->whatsThis() << widget->accessibleName()
          << widget->accessibleDescription();
    addFurtherTexts(*widget, texts);
  }
  return all;
}

/// Changes what is entered everywhere, unless that goes to the store at once.
void changeEntries(const QWizardPage& page) {
  if (page.inherits("TVR::GUI::WellPositionAndUsageWizardPage"))
    return;
  for (auto* const button : page.findChildren<QAbstractButton*>())
    if (button->isCheckable() && !button->isChecked() && button->isEnabled())
      button->click();
  for (auto* const group : page.findChildren<QGroupBox*>())
    if (group->isCheckable())
      group->setChecked(true);
  for (auto* const box : page.findChildren<QComboBox*>())
    box->setCurrentIndex(box->count() - 1);
  for (auto* const box : page.findChildren<QSpinBox*>())
    QTest::keyClick(box, Qt::Key_Up);
  for (auto* const edit : page.findChildren<QLineEdit*>())
    if (edit->isEnabled() && !qobject_cast<QSpinBox*>(edit->parentWidget()))
      QTest::keyClicks(edit, "7");
}

/// What is entered, by the names of the widgets.
QMap<QString, QVariant> entriesOf(const QWizardPage& page) {
  QMap<QString, QVariant> entries;
  for (const auto* const button : page.findChildren<QAbstractButton*>())
    if (button->isCheckable())
      entries[button->objectName()] = button->isChecked();
  for (const auto* const group : page.findChildren<QGroupBox*>())
    entries[group->objectName()] = group->isChecked();
  for (const auto* const box : page.findChildren<QComboBox*>())
    entries[box->objectName()] = box->currentIndex();
  for (const auto* const box : page.findChildren<QSpinBox*>())
    entries[box->objectName()] = box->value();
  for (const auto* const edit : page.findChildren<QLineEdit*>())
    entries[edit->parentWidget()->objectName() + edit->objectName()] = edit->text();
  return entries;
}

} // namespace

/// A page that is open while the user chooses another language.
class OtherLanguage : public EveryPage, public testing::WithParamInterface<const char*> {
protected:
  ~OtherLanguage() override { store.setValue(GuiLanguage, "en"); }

  static void show(InputWizard& shown, int id) {
    shown.setStartId(id);
    shown.restart();
    shown.show();
    shown.resize(400, 620);
    QApplication::processEvents();
  }
};

TEST_P(OtherLanguage, givesAPageThatIsOpenAllItsTextsAndLeavesWhatIsEntered) {
  for (const int id : wizard.pageIds()) {
    store.setValue(GuiLanguage, "en");
    show(wizard, id);
    QWizardPage& page = *wizard.page(id);
    SCOPED_TRACE(qPrintable(nameOf(page)));
    changeEntries(page);
    const auto entered = entriesOf(page);

    const ProgramLanguage language(GetParam());
    store.setValue(GuiLanguage, GetParam());
    tellOfLanguage(page);
    EXPECT_EQ(entriesOf(page), entered);

    InputWizard another;
    addPages(another);
    show(another, id);
    changeEntries(*another.page(id));
    const Texts texts = textsOf(page);
    const Texts expected = textsOf(*another.page(id));
    for (auto widget = expected.begin(); widget != expected.end(); ++widget) {
      EXPECT_EQ(texts[widget.key()].join(" | "), widget.value().join(" | "))
          << qPrintable(widget.key());
    }
    EXPECT_EQ(wizard.buttonText(QWizard::FinishButton), another.buttonText(QWizard::FinishButton));
  }
}

INSTANTIATE_TEST_SUITE_P(ToEach, OtherLanguage, testing::Values("de", "fr"));

} // namespace TVR::GUI
