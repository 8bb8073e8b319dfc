#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

/// What a program of the PEST family does with a calibration. It knows the control file, `site.pst`
/// in a folder, and what that names; what is wrong with the files fails the test.
class CalibrationProgram {
public:
  /// `program`: what the command of the control file is carried out by.
  CalibrationProgram(QString folder, QString program);

  struct Parameter {
    QString name;
    bool isLogarithm;
    double start;
    double least;
    double most;
  };
  std::vector<Parameter> parameters() const;
  /// The numbers that the parameters start at, by name.
  QMap<QString, double> start() const;

  /// The lines of a section of the control file.
  QStringList section(const QString& name) const;

  /// Puts these numbers into the template, carries out the command, and reads the answers where the
  /// instructions say, by the name of the observation.
  QMap<QString, double> answersAt(const QMap<QString, double>& numbers) const;

  /// The numbers within their bounds whose answers come nearest to what was observed: least squares
  /// of the weighted differences (Levenberg 1944, Marquardt 1963), with slopes from differences.
  QMap<QString, double> estimate() const;

private:
  QString file(const QString& name) const { return folder_ + '/' + name; }
  QString filledIn(const QString& marked, const QMap<QString, double>& numbers) const;
  QMap<QString, double> readAnswers(const QString& instructions, const QString& answers) const;

  const QString folder_;
  const QString program_;
};
