#pragma once

#include "quantities/MeshConvergence.h"

#include <QByteArray>
#include <QString>

namespace TVR::Study {

class StudyFolder;

/// How good the mesh of a base is.
struct MeshQuality {
  Quantities::MeshConvergence convergence; ///< without figures if it could not be judged
  QString fault;                           ///< why it could not be
};

/// That of a site, which takes three runs. It is kept in the folder of the study for the next page
/// of a base with the same digest.
MeshQuality meshQuality(const SiteInput& site, const OutputTimes& outputTimes,
                        const QByteArray& baseDigest, const StudyFolder& folder);

} // namespace TVR::Study
