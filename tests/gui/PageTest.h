#pragma once

#include "design/ParameterId.h"
#include "gui/wizard/InputWizard.h"
#include "messages/Messenger.h"
#include "store/Journal.h"
#include "store/Manager.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <QWizardPage>

#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>

/// How a failed expectation shows a text.
inline void PrintTo(const QString& text, std::ostream* stream) {
  *stream << '"' << text.toStdString() << '"';
}

namespace TVR::GUI {

/// Answers every question as the test says, and keeps what was shown.
class Answers final : public Messenger {
public:
  void tell(Severity, const QString&, const QString& text, Qt::TextFormat) override {
    shown << text;
  }
  bool agrees(const QString&, const QString& text) override { return answer(text); }
  bool saves(const QString&, const QString& text) override { return answer(text); }
  bool savesProposal(const QString& title, const QString& text) override {
    titles << title;
    return answer(text);
  }
  bool saysYes(Severity, const QString& title, const QString& text) override {
    titles << title;
    return answer(text);
  }
  bool saysOk(const QString& title, const QString& text) override {
    titles << title;
    return answer(text);
  }
  Unsaved decidesOnChanges(const QString&, const QString& text) override {
    shown << text;
    return Unsaved::Keep;
  }
  void tellDone(const QString&, const QString& text, const QString&, const QString&) override {
    shown << text;
  }

  bool yes = true;
  QStringList shown;
  QStringList titles;

private:
  bool answer(const QString& text) {
    shown << text;
    return yes;
  }
};

/// The ids that are written one after the other, without what the rules write.
class Writes final : public Data::Journal {
public:
  void record(const Data::JournalEntry& entry) override { ids << entry.what; }

  QVector<int> ids;
};

/// A store with the defaults, and somebody who answers.
class PageTest : public testing::Test {
protected:
  PageTest() {
    store.reset();
    setMessenger(&answers);
  }
  ~PageTest() override {
    setMessenger(nullptr);
    store.reset();
  }

  double number(int id) const { return store.value(id).toDouble(); }

  /// The parameters that hold another value than before, whatever its type.
  QVector<int> changedSince(const Project& before) const {
    QVector<int> ids;
    for (int id = 0; id < Parameter::Count; ++id)
      if (!isAlike(store.stored(id), before.values.value(id)))
        ids << id;
    return ids;
  }

  /// Whether a page can be left, and what that writes, in its order, to parameters that change.
  QVector<int> written(QWizardPage& page) {
    return writesOf([&page] { EXPECT_TRUE(page.validatePage()); });
  }
  /// The same of the way back from a page.
  QVector<int> putBack(QWizardPage& page) {
    return writesOf([&page] { page.cleanupPage(); });
  }

  /// Tells a page that the language is another one now. Only a page with actions listens.
  static void tellOfLanguage(QWizardPage& page) {
    page.addAction(new QAction(&page));
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(&page, &event);
  }

  Data::Manager& store = *Data::Manager::instance();
  Answers answers;

private:
  template <class Act>
  QVector<int> writesOf(const Act& act) {
    Writes writes;
    store.addJournal(&writes);
    act();
    store.removeJournal(&writes);
    return writes.ids;
  }
  static bool isAlike(const QVariant& one, const QVariant& other) {
    bool isNumber = false;
    bool isNumberToo = false;
    const double first = one.toDouble(&isNumber);
    const double second = other.toDouble(&isNumberToo);
    return isNumber && isNumberToo ? isSameNumber(first, second)
                                   : one.toString() == other.toString();
  }
};

/// A widget of a page by its name, which has to be there.
template <class Widget>
Widget* in(const QWizardPage& page, const char* name) {
  auto* const widget = page.findChild<Widget*>(name);
  if (!widget)
    throw std::runtime_error(name);
  return widget;
}

inline QString textIn(const QWizardPage& page, const char* edit) {
  return in<QLineEdit>(page, edit)->text();
}

/// Types a text in the place of what is there; nothing to leave it empty.
inline void type(const QWizardPage& page, const char* edit, const QString& text) {
  auto* const line = in<QLineEdit>(page, edit);
  QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(line, Qt::Key_Delete);
  QTest::keyClicks(line, text);
}

inline void press(const QWizardPage& page, const char* button) {
  QTest::mouseClick(in<QAbstractButton>(page, button), Qt::LeftButton);
}

/// A message as a feedback label shows it.
inline QString red(const char* message) {
  return QStringLiteral("<body style=color:red><center><b>%1</b></center></body>").arg(message);
}

} // namespace TVR::GUI
