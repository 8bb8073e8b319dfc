#pragma once

#include "support/NoSettings.h"

#include <QFile>
#include <QTemporaryDir>

/// An empty directory for the user's data, while this object lives; programs that are started
/// meanwhile have it too.
class DataOfTheTest {
public:
  DataOfTheTest() { qputenv("XDG_DATA_HOME", QFile::encodeName(directory_.path())); }
  ~DataOfTheTest() { qputenv("XDG_DATA_HOME", noSettings); }
  DataOfTheTest(const DataOfTheTest&) = delete;
  DataOfTheTest& operator=(const DataOfTheTest&) = delete;

  QString path() const { return directory_.path(); }

private:
  const QTemporaryDir directory_;
};
