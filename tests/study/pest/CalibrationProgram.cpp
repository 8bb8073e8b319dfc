#include "CalibrationProgram.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>

namespace {

using Parameters = std::vector<CalibrationProgram::Parameter>;
using Eigen::MatrixXd;
using Eigen::VectorXd;

QString textOf(const QString& fileName) {
  QFile file(fileName);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fileName.toStdString();
  return QString::fromUtf8(file.readAll());
}

/// A number on the scale on which its parameter is estimated, from 0 at its least to 1 at its most.
double toScale(const CalibrationProgram::Parameter& parameter, double number) {
  const auto [least, most] = std::pair(parameter.least, parameter.most);
  return parameter.isLogarithm ? std::log(number / least) / std::log(most / least)
                               : (number - least) / (most - least);
}
double fromScale(const CalibrationProgram::Parameter& parameter, double place) {
  const auto [least, most] = std::pair(parameter.least, parameter.most);
  return parameter.isLogarithm ? least * std::pow(most / least, place)
                               : least + place * (most - least);
}

QMap<QString, double> numbersAt(const Parameters& parameters, const VectorXd& places) {
  QMap<QString, double> numbers;
  for (std::size_t i = 0; i < parameters.size(); ++i)
    numbers[parameters[i].name] = fromScale(parameters[i], places[static_cast<Eigen::Index>(i)]);
  return numbers;
}

/// The change of each answer along each parameter, from steps into the range.
template <class Residuals>
MatrixXd slopes(const Residuals& residualsAt, const VectorXd& places, const VectorXd& residuals) {
  constexpr double step = 1e-3;
  MatrixXd result(residuals.size(), places.size());
  for (Eigen::Index i = 0; i < places.size(); ++i) {
    VectorXd moved = places;
    const double by = places[i] < 0.5 ? step : -step;
    moved[i] += by;
    result.col(i) = (residualsAt(moved) - residuals) / by;
  }
  return result;
}

/// The places from 0 to 1 at which the sum of the squares of the residuals is least.
template <class Residuals>
VectorXd leastSquares(const Residuals& residualsAt, VectorXd places) {
  constexpr int mostRounds = 20;
  double damping = 1e-3;
  VectorXd residuals = residualsAt(places);
  for (int round = 0; round < mostRounds && residuals.norm() > 1e-4; ++round) {
    const MatrixXd slope = slopes(residualsAt, places, residuals);
    MatrixXd normal = slope.transpose() * slope;
    normal.diagonal() *= 1 + damping;
    const VectorXd step = normal.ldlt().solve(-slope.transpose() * residuals);
    const VectorXd next = (places + step).cwiseMax(0).cwiseMin(1);
    const VectorXd found = residualsAt(next);
    const bool isBetter = found.squaredNorm() < residuals.squaredNorm();
    damping *= isBetter ? 0.1 : 10;
    if (isBetter) {
      places = next;
      residuals = found;
    }
  }
  return places;
}

} // namespace

CalibrationProgram::CalibrationProgram(QString folder, QString program)
    : folder_(std::move(folder)), program_(std::move(program)) {}

QStringList CalibrationProgram::section(const QString& name) const {
  const QString text = textOf(file("site.pst"));
  return text.section("* " + name + "\n", 1).section("\n*", 0, 0).trimmed().split('\n');
}

Parameters CalibrationProgram::parameters() const {
  Parameters result;
  for (const QString& line : section("parameter data")) {
    const QStringList words = line.split(' ');
    const Parameter parameter{words[0], words[1] == "log", words[3].toDouble(), words[4].toDouble(),
                              words[5].toDouble()};
    EXPECT_LT(parameter.least, parameter.most) << line.toStdString();
    result.push_back(parameter);
  }
  return result;
}

QMap<QString, double> CalibrationProgram::start() const {
  QMap<QString, double> numbers;
  for (const Parameter& parameter : parameters())
    numbers[parameter.name] = parameter.start;
  return numbers;
}

QString CalibrationProgram::filledIn(const QString& marked,
                                     const QMap<QString, double>& numbers) const {
  QString text = textOf(file(marked));
  const QString mark = text.section('\n', 0, 0).section(' ', 1);
  text = text.section('\n', 1);
  EXPECT_EQ(mark.size(), 1);
  EXPECT_EQ(text.count(mark), 2 * numbers.size());
  const QRegularExpression place(
      QStringLiteral("%1 *(\\w+) *%1").arg(QRegularExpression::escape(mark)));
  for (auto match = place.match(text); match.hasMatch(); match = place.match(text)) {
    const QString number = QString::number(numbers.value(match.captured(1)), 'g', 17);
    EXPECT_LE(number.size(), match.capturedLength());
    text.replace(match.capturedStart(), match.capturedLength(), number);
  }
  return text;
}

QMap<QString, double> CalibrationProgram::readAnswers(const QString& instructions,
                                                      const QString& answers) const {
  QMap<QString, double> values;
  const QStringList lines = textOf(file(answers)).split('\n');
  const QRegularExpression form("^l1 \\[(\\w+)\\](\\d+):(\\d+)$");
  QStringList orders = textOf(file(instructions)).trimmed().split('\n');
  EXPECT_EQ(orders.takeFirst(), "pif @");
  for (int i = 0; i < orders.size(); ++i) {
    const auto order = form.match(orders[i]);
    const int first = order.captured(2).toInt();
    const int last = order.captured(3).toInt();
    bool isNumber = false;
    values[order.captured(1)] =
        lines.value(i).mid(first - 1, last - first + 1).trimmed().toDouble(&isNumber);
    EXPECT_TRUE(isNumber) << orders[i].toStdString();
  }
  return values;
}

QMap<QString, double> CalibrationProgram::answersAt(const QMap<QString, double>& numbers) const {
  const QStringList files = section("model input/output");
  const QStringList input = files.value(0).split(' ');
  const QStringList output = files.value(1).split(' ');
  QFile site(file(input.value(1)));
  EXPECT_TRUE(site.open(QIODevice::WriteOnly));
  site.write(filledIn(input[0], numbers).toUtf8());
  site.close();

  QStringList command = section("model command line").first().split(' ');
  EXPECT_EQ(command.takeFirst(), "tevrane-study");
  QProcess process;
  process.setWorkingDirectory(folder_);
  process.start(program_, command);
  EXPECT_TRUE(process.waitForFinished(120'000));
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return readAnswers(output.value(0), output.value(1));
}

QMap<QString, double> CalibrationProgram::estimate() const {
  const Parameters all = parameters();
  const QStringList observations = section("observation data");
  const auto residualsAt = [&](const VectorXd& places) {
    const QMap<QString, double> answers = answersAt(numbersAt(all, places));
    VectorXd residuals(observations.size());
    for (int i = 0; i < observations.size(); ++i) {
      const QStringList words = observations[i].split(' '); // name, value, weight, group
      residuals[i] = words[2].toDouble() * (answers.value(words[0]) - words[1].toDouble());
    }
    return residuals;
  };
  VectorXd places(static_cast<Eigen::Index>(all.size()));
  for (std::size_t i = 0; i < all.size(); ++i)
    places[static_cast<Eigen::Index>(i)] = toScale(all[i], all[i].start);
  return numbersAt(all, leastSquares(residualsAt, places));
}
