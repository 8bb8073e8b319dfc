#include "batch/ConvergenceText.h"

#include "messages/PrintableText.h"

#include <QJsonArray>

namespace TVR::Batch {

using Quantities::Behaviour;
using Quantities::FigureConvergence;
using Quantities::MeshConvergence;

namespace {

QString number(double value) {
  return QString::number(value, 'g', 5);
}

QString nameOf(Behaviour behaviour) {
  switch (behaviour) {
  case Behaviour::Settled:
    return "settled";
  case Behaviour::Monotone:
    return "monotone";
  default:
    return "oscillating";
  }
}

QString orderOf(const FigureConvergence& figure) {
  const auto& order = figure.convergence.order;
  return order ? QString::number(*order, 'f', 2) : nameOf(figure.convergence.behaviour);
}

QString extrapolationOf(const FigureConvergence& figure) {
  const auto& extrapolated = figure.convergence.extrapolated;
  return extrapolated ? number(*extrapolated) : "-";
}

QJsonValue valueOrNull(const std::optional<double>& value) {
  return value ? QJsonValue(*value) : QJsonValue();
}

QString line(const QString& name, const QString& value, const QString& extrapolated,
             const QString& order, const QString& band, const QString& unit) {
  return QStringLiteral("    %1  %2  %3  %4  %5  %6")
      .arg(name, -32)
      .arg(value, 12)
      .arg(extrapolated, 12)
      .arg(order, 11)
      .arg(band, 10)
      .arg(unit);
}

} // namespace

QStringList convergenceLines(const MeshConvergence& convergence) {
  const auto& [coarse, own, fine] = convergence.cells;
  QStringList lines{
      QStringLiteral("  meshes of %1, %2 (its own) and %3 cells:").arg(coarse).arg(own).arg(fine),
      line("at the end of the run", "value", "extrapolated", "order", "band +-", "")};
  for (const FigureConvergence& figure : convergence.figures)
    lines << line(printable(figure.name), number(figure.convergence.value), extrapolationOf(figure),
                  orderOf(figure), number(figure.convergence.band), figure.unit);
  for (QString& text : lines)
    while (text.endsWith(' '))
      text.chop(1);
  return lines;
}

QStringList convergenceWarnings(const MeshConvergence& convergence) {
  QStringList warnings;
  for (const FigureConvergence& figure : convergence.figures)
    if (!figure.isGoodEnough())
      warnings << QStringLiteral("the mesh is not good enough for %1: %2 %3 within +-%4, expected "
                                 "+-%5; more cells ([main] max_number_of_fv_elements) or smaller "
                                 "steps between them ([main] cell_increase_factor) help")
                      .arg(figure.name, number(figure.convergence.value), figure.unit,
                           number(figure.convergence.band), number(figure.tolerance));
  return warnings;
}

QJsonObject convergenceJson(const MeshConvergence& convergence) {
  QJsonArray figures;
  for (const FigureConvergence& figure : convergence.figures) {
    const Quantities::GridConvergence& judged = figure.convergence;
    figures.append(QJsonObject{
        {"name", printable(figure.name)},
        {"unit", figure.unit},
        {"values", QJsonArray{figure.values[0], figure.values[1], figure.values[2]}},
        {"value", judged.value},
        {"extrapolated", valueOrNull(judged.extrapolated)},
        {"order", valueOrNull(judged.order)},
        {"behaviour", nameOf(judged.behaviour)},
        {"band", judged.band},
        {"good_enough", figure.isGoodEnough()},
    });
  }
  const auto& [coarse, own, fine] = convergence.cells;
  return {{"cells", QJsonArray{coarse, own, fine}}, {"figures", figures}};
}

} // namespace TVR::Batch
