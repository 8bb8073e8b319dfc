#pragma once

#include "quantities/MeshConvergence.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace TVR::Batch {

/// What three meshes say of a site, as the lines of a table.
QStringList convergenceLines(const Quantities::MeshConvergence& convergence);

/// One warning for each figure that the mesh is not good enough for.
QStringList convergenceWarnings(const Quantities::MeshConvergence& convergence);

/// The same for other programs, see docs/json-report.md.
QJsonObject convergenceJson(const Quantities::MeshConvergence& convergence);

} // namespace TVR::Batch
