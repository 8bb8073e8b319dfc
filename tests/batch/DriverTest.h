#pragma once

#include "support/TestDirectory.h"

#include <QProcess>

#include <gtest/gtest.h>

/// What a program said, and how it ended.
struct Outcome {
  int exitCode;
  QString out;
  QString err;
};

/// A doublet of 40 m over two years, which runs in a fraction of a second.
inline const QByteArray smallDoublet = R"([main]
simulation_time=2
max_number_of_fv_elements=200
cell_increase_factor=60
[thermic]
exchange_caprock=false
exchange_bedrock=false
[hydraulic]
groundwater_gradient=0.2
[installation]
well_model\size=2
well_model\1\0=Pump
well_model\1\1=0
well_model\1\2=0
well_model\1\3=-0.001
well_model\2\0=Return
well_model\2\1=40
well_model\2\2=0
well_model\2\3=0.001
well_model\2\4=-3
)";

/// Runs the program as a user does, in a directory of its own.
class DriverTest : public testing::Test, protected TestDirectory {
protected:
  QString write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }

  Outcome run(const QStringList& arguments) const {
    return runProgram(TEVRANE_BATCH_PROGRAM, arguments);
  }

  Outcome runProgram(const QString& program, const QStringList& arguments) const {
    return runIn(directory.path(), program, arguments);
  }

  static Outcome runIn(const QString& place, const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setWorkingDirectory(place);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(240000));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
  }
};
