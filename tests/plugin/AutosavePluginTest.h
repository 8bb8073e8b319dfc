#pragma once

#include "plugin/PagePluginTest.h"
#include "plugin/ProjectDocument.h"
#include "support/DataOfTheTest.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QMainWindow>

/// A program that edits and ends without notice, and the next one. `plugin` is the next one.
class AutosavePluginTest : public PagePluginTest {
protected:
  AutosavePluginTest() {
    watch();
    TVR::setMessenger(&user);
  }
  ~AutosavePluginTest() override {
    TVR::setMessenger(nullptr);
    plugin.setAppInterface(nullptr); // before the directory of its autosaves goes
  }

  void watch() {
    host.main = &main;
    plugin.setAppInterface(&host);
  }
  /// The program ends as one that is killed does, but for its memory; the next one has started.
  void endWithoutNotice() {
    plugin.document().autosave().letGo();
    plugin.document().opened({});
    store.reset();
    plugin.document().opened({});
  }
  TVR::ProjectDocument& document() { return plugin.document(); }
  QString savedProject() {
    read(BatchProject::doublet());
    store.setValue(TVR::Parameter::ProjectName, "Riverside");
    plugin.save(path("riverside.tvr"));
    return path("riverside.tvr");
  }
  /// A project that was changed, saved automatically and left.
  QString leaveChanged() {
    const QString file = savedProject();
    store.setValue(TVR::Parameter::GroundwaterGradient, 0.75);
    EXPECT_TRUE(document().autosave().keepNow());
    endWithoutNotice();
    return file;
  }
  std::vector<std::unique_ptr<TVR::AutosaveFolder>> leftovers() const {
    return TVR::AutosaveFolder::leftovers(TVR::AutosaveFolder::usualPlace());
  }

  const SettingsOfTheTest settings_;
  const DataOfTheTest data_;
  QMainWindow main;
  TestMessenger user;
};
