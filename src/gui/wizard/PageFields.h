#pragma once

#include <QMap>
#include <QVariant>

#include <functional>
#include <initializer_list>
#include <vector>

class QAbstractButton;
class QComboBox;
class QEvent;
class QGroupBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QWizard;
class QWizardPage;

namespace TVR::Data {
class Manager;
}

namespace TVR::GUI {

/// How a number stands in a line edit, and what may be typed.
struct NumberRule {
  double minimum = 0;
  double maximum = 0;
  int decimals = 2;  ///< most that can be typed
  char format = 'f'; ///< of QString::number
  int shown = 2;     ///< decimals of that format
  double factor = 1; ///< what is shown is the stored value times this
};

/// A widget of a page and the parameter that it shows.
struct PageField {
  int id = 0;
  bool isChoice = false; ///< what is stored counts, and no name that stands for it
  std::function<void(const QVariant& value)> show;
  std::function<QVariant()> entered;
  std::function<bool()> isWritten; ///< empty: always
  std::function<void()> prepare;   ///< before it is shown, such as its validator; may be empty

  /// What `substitute` makes of a stored value is shown, and written if it is not touched.
  PageField&& shownAs(std::function<QVariant(const QVariant& stored)> substitute) &&;
  PageField&& writtenIf(std::function<bool()> condition) && {
    isWritten = std::move(condition);
    return std::move(*this);
  }
  PageField&& writtenIf(const QAbstractButton* checked) &&;
  PageField&& writtenIf(const QGroupBox* checked) &&;
};

/// The whole number next to a value. What came from a file is a text and may have a point: "135.0".
int nearestWhole(const QVariant& value);

/// A number in a line edit, always with a decimal point, for which a comma is taken. What nobody
/// touches keeps the decimals that are not shown.
PageField numberField(int id, QLineEdit* edit, const NumberRule& rule);
/// The same, which stays empty unless the value is above 0.
PageField positiveNumberField(int id, QLineEdit* edit, const NumberRule& rule);
PageField textField(int id, QLineEdit* edit);
PageField countField(int id, QSpinBox* box);
/// A flag as a check mark.
PageField flagField(int id, QAbstractButton* button);
PageField flagField(int id, QGroupBox* box);
/// A flag as two buttons of which one is checked.
PageField flagField(int id, QAbstractButton* yes, QAbstractButton* no);
/// A flag that is true while there is no check mark.
PageField invertedFlagField(int id, QGroupBox* box);
/// One of several buttons: the parameter is the place of the checked one, from 0. A place outside
/// stands for the nearest one.
PageField buttonsField(int id, const std::vector<QAbstractButton*>& buttons);
/// One of the rows of a table of the reference database; the first one where the stored row is not
/// among them.
PageField choiceField(const Data::Manager& store, int id, QComboBox* box);

/// Fills a box with the choices in the language of the moment, keeping what is chosen.
void fillChoices(const Data::Manager& store, int id, QComboBox* box);

/// Lets nothing be typed but numbers of this rule.
void limitToNumbers(QLineEdit* edit, const NumberRule& rule);
/// Whether there is no number in an edit, or whether one was typed that its validator does not
/// take. What came out of the store may lie outside the range of a form.
bool lacksNumber(const QLineEdit* edit);
/// The number in an edit; 0 if there is none.
double numberIn(const QLineEdit* edit);

/// What the pages of wizards have in common: their fields are filled from the store when a page is
/// entered, tested when it is left, written in their order, and put back on a reset.
class PageFields {
public:
  /// `context` is the translation context of the messages, and lives on.
  PageFields(Data::Manager& store, const char* context) : store_(store), context_(context) {}

  /// The label that shows the messages; without one they are not seen.
  void showMessagesIn(QLabel* feedback) { feedback_ = feedback; }

  void add(PageField field) { fields_.push_back(std::move(field)); }
  /// A message [marked for translation in the page's context] that shows if `fails` holds when the
  /// page is left. Tests run in the order in which they are added.
  void test(std::function<bool()> fails, const char* message) {
    tests_.push_back({std::move(fails), message});
  }

  /// Remembers the parameters of the fields, and `others`, as they are now.
  void save(std::initializer_list<int> others = {});
  /// Shows the remembered values.
  void show();
  /// Runs all tests and shows the message of the last one that fails, or none. Whether none fails.
  bool pass();
  /// Writes what is entered, in the order of the fields.
  void write();
  /// save, show / pass, and write if that is true.
  void enter(std::initializer_list<int> others = {});
  bool leave();

  /// The remembered value of a parameter; invalid if it is none of the page.
  QVariant saved(int id) const { return savedValues_.value(id); }
  /// Asks whether to reset (the whole translated question).
  static bool agreesToReset(const QString& question);
  /// Writes remembered values of these parameters back, in this order. What had none gets an empty
  /// one.
  void restore(std::initializer_list<int> ids);
  /// Writes the remembered value of `other` to the parameter `id`.
  void restoreAs(int id, int other);
  /// Writes all remembered values back, in the order in which they were added.
  void restoreAll();
  void clearFeedback() { say(nullptr); }
  /// Shows the message of the moment in the language of the moment.
  void sayAgain() { say(message_); }
  /// The whole of a plain reset: the question, all values, and no message any more.
  void reset(const QString& question);
  /// The same of these values only, in this order.
  void reset(const QString& question, std::initializer_list<int> ids);

private:
  struct Test {
    std::function<bool()> fails;
    const char* message;
  };

  void say(const char* message);
  void writeBack(int id, const QVariant& value);

  Data::Manager& store_;
  const char* context_;
  QLabel* feedback_ = nullptr;
  const char* message_ = nullptr; ///< the one that shows
  std::vector<PageField> fields_;
  std::vector<Test> tests_;
  QMap<int, QVariant> savedValues_;
  std::vector<int> savedOrder_;
};

/// A message as it stands in a feedback label.
QString feedbackText(const QString& message);

/// The id of `page` among those of a wizard; `otherwise` if it is none of them.
int idOfPage(const QWizard* wizard, const QWizardPage* page, int otherwise);

/// Whether a page sets its texts anew at this event.
bool asksForTexts(const QWizardPage& page, const QEvent& event);

} // namespace TVR::GUI
