#include "translations/WholeProgramTest.h"

#include <QAction>
#include <QKeySequence>
#include <QMap>
#include <QMenu>
#include <QMenuBar>

using namespace TVR;

namespace {

using MnemonicsTest = WholeProgramTest;

/// The mnemonics that two entries share, each with the texts of both.
QStringList sharedMnemonics(const QList<QAction*>& entries) {
  QMap<QString, QString> known;
  QStringList shared;
  for (const QAction* entry : entries) {
    const QString key = QKeySequence::mnemonic(entry->text()).toString();
    if (key.isEmpty())
      continue;
    if (known.contains(key))
      shared << QStringLiteral("%1: %2, %3").arg(key, known[key], entry->text());
    known.insert(key, entry->text());
  }
  return shared;
}

} // namespace

TEST_F(MnemonicsTest, noMenuHasOneTwiceInAnyLanguage) {
  for (const char* slot : {"setEnglish", "setGerman", "setFrench"}) {
    choose(slot);
    EXPECT_EQ(sharedMnemonics(window->menuBar()->actions()), QStringList()) << slot;
    for (const QMenu* menu : window->findChildren<QMenu*>())
      EXPECT_EQ(sharedMnemonics(menu->actions()), QStringList())
          << slot << sharedMnemonics(menu->actions()).join('\n').toStdString();
  }
}

TEST_F(MnemonicsTest, noMenuOfTheBarTakesAShortcutInAnyLanguage) {
  for (const char* slot : {"setEnglish", "setGerman", "setFrench"}) {
    choose(slot);
    for (const QAction* menu : window->menuBar()->actions())
      for (const char* taken : {"Alt+O", "Alt+S"})
        EXPECT_NE(QKeySequence::mnemonic(menu->text()), QKeySequence(taken))
            << slot << ' ' << menu->text().toStdString();
  }
}
