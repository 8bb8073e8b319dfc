#include "gui/wizard/PageFields.h"

#include "design/WellDesign.h"
#include "gui/wizard/LimitedQDoubleValidator.h"
#include "messages/UserMessages.h"
#include "store/Manager.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QWizard>

#include <algorithm>
#include <cmath>
#include <memory>

namespace TVR::GUI {

namespace {

/// Numbers have a point in every language, as in the files and in all that the program shows. A
/// comma becomes one: refused, it would leave a number behind that is a hundred times larger.
class PointValidator final : public BrenvikTools::LimitedQDoubleValidator {
public:
  PointValidator(const NumberRule& rule, QObject* parent)
      : LimitedQDoubleValidator(rule.minimum, rule.maximum, rule.decimals, parent) {
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    setLocale(plain);
  }

  State validate(QString& text, int& position) const override {
    text.replace(',', '.');
    return LimitedQDoubleValidator::validate(text, position);
  }
};

QString numberText(double value, const NumberRule& rule) {
  return QString::number(value * rule.factor, rule.format, rule.shown);
}

/// A text that was not touched stands for the value that it was made of, with all its decimals.
struct ShownNumber {
  QString text;
  double value = 0;
};

PageField lineField(int id, QLineEdit* edit, const NumberRule& rule,
                    std::function<QString(double)> text) {
  const auto shown = std::make_shared<ShownNumber>();
  PageField field;
  field.id = id;
  field.prepare = [edit, rule] { limitToNumbers(edit, rule); };
  field.show = [edit, shown, text = std::move(text)](const QVariant& value) {
    *shown = {text(value.toDouble()), value.toDouble()};
    edit->setText(shown->text);
  };
  field.entered = [edit, shown, rule] {
    const bool isTouched = edit->isModified() || edit->text() != shown->text;
    return isTouched ? numberIn(edit) / rule.factor : shown->value;
  };
  return field;
}

template <class Checkable>
PageField checkField(int id, Checkable* widget, bool isInverted) {
  PageField field;
  field.id = id;
  field.show = [widget, isInverted](const QVariant& value) {
    widget->setChecked(value.toBool() != isInverted);
  };
  field.entered = [widget, isInverted] { return widget->isChecked() != isInverted; };
  return field;
}

} // namespace

PageField&& PageField::shownAs(std::function<QVariant(const QVariant& stored)> substitute) && {
  show = [show = std::move(show), substitute = std::move(substitute)](const QVariant& stored) {
    show(substitute(stored));
  };
  return std::move(*this);
}

PageField&& PageField::writtenIf(const QAbstractButton* checked) && {
  return std::move(*this).writtenIf([checked] { return checked->isChecked(); });
}

PageField&& PageField::writtenIf(const QGroupBox* checked) && {
  return std::move(*this).writtenIf([checked] { return checked->isChecked(); });
}

int nearestWhole(const QVariant& value) {
  return wholeNumber(std::round(value.toDouble()));
}

PageField numberField(int id, QLineEdit* edit, const NumberRule& rule) {
  return lineField(id, edit, rule, [rule](double value) { return numberText(value, rule); });
}

PageField positiveNumberField(int id, QLineEdit* edit, const NumberRule& rule) {
  return lineField(id, edit, rule, [rule](double value) {
    return value > 0 ? numberText(value, rule) : QString();
  });
}

PageField textField(int id, QLineEdit* edit) {
  PageField field;
  field.id = id;
  field.show = [edit](const QVariant& value) { edit->setText(value.toString()); };
  field.entered = [edit] { return edit->text(); };
  return field;
}

PageField countField(int id, QSpinBox* box) {
  PageField field;
  field.id = id;
  field.show = [box](const QVariant& value) { box->setValue(nearestWhole(value)); };
  field.entered = [box] { return box->value(); };
  return field;
}

PageField flagField(int id, QAbstractButton* button) {
  return checkField(id, button, false);
}

PageField flagField(int id, QGroupBox* box) {
  return checkField(id, box, false);
}

PageField flagField(int id, QAbstractButton* yes, QAbstractButton* no) {
  PageField field = flagField(id, yes);
  field.show = [yes, no](const QVariant& value) { (value.toBool() ? yes : no)->setChecked(true); };
  return field;
}

PageField invertedFlagField(int id, QGroupBox* box) {
  return checkField(id, box, true);
}

PageField buttonsField(int id, const std::vector<QAbstractButton*>& buttons) {
  PageField field;
  field.id = id;
  field.show = [buttons](const QVariant& value) {
    const int last = static_cast<int>(buttons.size()) - 1;
    const int place = std::clamp(wholeNumber(value.toDouble()), 0, last);
    buttons[static_cast<std::size_t>(place)]->setChecked(true);
  };
  field.entered = [buttons] {
    const auto checked = std::find_if(buttons.begin(), buttons.end(),
                                      [](const auto* button) { return button->isChecked(); });
    return static_cast<int>(checked - buttons.begin());
  };
  return field;
}

PageField choiceField(const Data::Manager& store, int id, QComboBox* box) {
  PageField field;
  field.id = id;
  field.isChoice = true;
  field.prepare = [&store, id, box] { fillChoices(store, id, box); };
  field.show = [box](const QVariant& value) {
    box->setCurrentIndex(std::max(0, box->findData(wholeNumber(value.toDouble()))));
  };
  field.entered = [box] { return box->currentData(); };
  return field;
}

void fillChoices(const Data::Manager& store, int id, QComboBox* box) {
  const QSignalBlocker blocker(box);
  const QVariant chosen = box->currentData();
  box->clear();
  store.fillComboBox(id, box);
  box->setCurrentIndex(std::max(0, box->findData(chosen)));
}

void limitToNumbers(QLineEdit* edit, const NumberRule& rule) {
  delete edit->validator();
  edit->setValidator(new PointValidator(rule, edit));
}

bool lacksNumber(const QLineEdit* edit) {
  bool isNumber = false;
  edit->text().toDouble(&isNumber);
  return !isNumber || (edit->isModified() && !edit->hasAcceptableInput());
}

double numberIn(const QLineEdit* edit) {
  return edit->text().toDouble();
}

void PageFields::save(std::initializer_list<int> others) {
  savedOrder_.clear();
  savedValues_.clear();
  const auto remember = [this](int id, int role) {
    savedOrder_.push_back(id);
    savedValues_[id] = store_.value(id, role);
  };
  for (const PageField& field : fields_)
    remember(field.id, field.isChoice ? Data::Manager::StoredValue : Data::Manager::EffectiveValue);
  for (const int id : others)
    remember(id, Data::Manager::EffectiveValue);
}

void PageFields::show() {
  for (const PageField& field : fields_) {
    if (field.prepare)
      field.prepare();
    field.show(saved(field.id));
  }
}

bool PageFields::pass() {
  const char* message = nullptr;
  for (const Test& test : tests_)
    if (test.fails())
      message = test.message; // the last one is the one that shows
  say(message);
  return !message;
}

void PageFields::write() {
  for (const PageField& field : fields_)
    if (!field.isWritten || field.isWritten())
      store_.setValue(field.id, field.entered());
}

void PageFields::enter(std::initializer_list<int> others) {
  save(others);
  show();
}

bool PageFields::leave() {
  if (!pass())
    return false;
  write();
  return true;
}

bool PageFields::agreesToReset(const QString& question) {
  return userSaysYes(Severity::Information, programTitle, question);
}

void PageFields::restore(std::initializer_list<int> ids) {
  for (const int id : ids)
    writeBack(id, saved(id));
}

void PageFields::restoreAs(int id, int other) {
  writeBack(id, saved(other));
}

void PageFields::restoreAll() {
  for (const int id : savedOrder_)
    writeBack(id, saved(id));
}

void PageFields::writeBack(int id, const QVariant& value) {
  store_.setValue(id, value.isValid() ? value : QVariant(QString()));
}

void PageFields::reset(const QString& question) {
  if (!agreesToReset(question))
    return;
  restoreAll();
  clearFeedback();
}

void PageFields::reset(const QString& question, std::initializer_list<int> ids) {
  if (!agreesToReset(question))
    return;
  restore(ids);
  clearFeedback();
}

void PageFields::say(const char* message) {
  message_ = message;
  if (feedback_)
    feedback_->setText(message ? feedbackText(QCoreApplication::translate(context_, message))
                               : QString());
}

QString feedbackText(const QString& message) {
  return QStringLiteral("<body style=color:red><center><b>%1</b></center></body>").arg(message);
}

int idOfPage(const QWizard* wizard, const QWizardPage* page, int otherwise) {
  if (wizard && page)
    for (const int id : wizard->pageIds())
      if (wizard->page(id) == page)
        return id;
  return otherwise;
}

bool asksForTexts(const QWizardPage& page, const QEvent& event) {
  // Required oddity: only a page with actions of its own takes the texts of a new language.
  return event.type() == QEvent::LanguageChange && !page.actions().isEmpty();
}

} // namespace TVR::GUI
