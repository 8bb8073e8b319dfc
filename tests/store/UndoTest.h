#pragma once

#include "files/BatchFiles.h"
#include "store/StoreTest.h"
#include "store/UndoHistory.h"
#include "store/UserStep.h"

#include <QFile>

namespace TVR::Data {

/// A store without any table, and a history of what is done to it.
class UndoTest : public BatchFileTest {
protected:
  UndoTest() {
    Project project = store.project();
    project.wells = {};
    project.durations.clear();
    project.made = {};
    store.setProject(project);
    history.clear();
  }
  ~UndoTest() override { store.wellDemandModel(); }

  void undoAll() {
    while (history.canUndo())
      history.undo();
  }
  void redoAll() {
    while (history.canRedo())
      history.redo();
  }

  UndoHistory history{store};
};

} // namespace TVR::Data
