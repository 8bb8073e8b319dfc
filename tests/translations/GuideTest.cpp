#include "translations/WholeProgramTest.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

using namespace TVR;

namespace {

/// A path through the menus as the guide has it, "**File > Print** (Ctrl+P)".
struct Mention {
  QStringList path;
  QString shortcut; ///< empty where none is told
};

QList<Mention> mentionsIn(const QString& guide) {
  static const QRegularExpression pattern(R"(\*\*([^*]+ > [^*]+)\*\*(?:\s\(([^)]+\+[^)]+)\))?)");
  QList<Mention> mentions;
  for (auto match = pattern.globalMatch(guide); match.hasNext();) {
    const QRegularExpressionMatch next = match.next();
    mentions << Mention{next.captured(1).simplified().split(" > "), next.captured(2)};
  }
  return mentions;
}

/// Without mnemonic and dots, as one speaks of it.
QString spoken(const QAction& entry) {
  return QString(entry.text()).remove('&').remove("...");
}

class GuideTest : public WholeProgramTest, public testing::WithParamInterface<const char*> {
protected:
  static QString guide() {
    QFile file(QStringLiteral(TEVRANE_GUIDE_DIR "/%1/index.md").arg(GetParam()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  const QAction* entry(const QStringList& path) const {
    QList<QAction*> entries = window->menuBar()->actions();
    const QAction* found = nullptr;
    for (const QString& name : path) {
      const auto place = std::find_if(entries.begin(), entries.end(),
                                      [&](QAction* action) { return spoken(*action) == name; });
      if (place == entries.end())
        return nullptr;
      found = *place;
      entries = found->menu() ? found->menu()->actions() : QList<QAction*>();
    }
    return found;
  }
};

} // namespace

TEST_P(GuideTest, callsCommandsAndTheirKeysAsTheProgramDoes) {
  const QMap<QString, const char*> switches{
      {"en", "setEnglish"}, {"de", "setGerman"}, {"fr", "setFrench"}};
  choose(switches[GetParam()]);
  const QList<Mention> mentions = mentionsIn(guide());
  EXPECT_GE(mentions.size(), 12);
  for (const Mention& mention : mentions) {
    const QAction* const action = entry(mention.path);
    ASSERT_TRUE(action) << mention.path.join(" > ").toStdString();
    if (!mention.shortcut.isEmpty()) {
      EXPECT_EQ(action->shortcut().toString(QKeySequence::NativeText), mention.shortcut);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, GuideTest, testing::Values("en", "de", "fr"),
                         [](const auto& language) { return std::string(language.param); });
