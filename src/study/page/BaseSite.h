#pragma once

#include "quantities/MeshConvergence.h"

#include <QPointF>
#include <QString>

#include <vector>

namespace TVR::Study {

class StudyFolder;
struct StudySetup;

/// A well of the base as the map shows it.
struct BaseWell {
  QString name;
  QPointF place;      ///< [m]
  bool draws = false; ///< whether it withdraws water at any time of the year
  int symbol = 0;     ///< Sketra_lib::Property::SymbolValue
  QString meaning;    ///< of the symbol, for a legend
};

/// What the page of a study says of its base.
struct BaseSite {
  std::vector<BaseWell> wells;
  QString mesh; ///< how good its mesh is, in one line
};

/// Reads the base into the store of this process. The line about the mesh takes three runs; it is
/// kept in the folder of the study for the next page.
BaseSite baseSite(const StudySetup& study, const StudyFolder& folder);

/// One line: the figures whose bands are the widest for what is allowed of them, and how many the
/// mesh is not good enough for.
QString meshLine(const Quantities::MeshConvergence& convergence);

} // namespace TVR::Study
