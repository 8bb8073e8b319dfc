#pragma once

#include "study/page/MeshQuality.h"

#include <QPointF>
#include <QString>

#include <cstddef>
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

/// What the page of a study says of its base, in the language of the moment.
struct BaseSite {
  std::vector<BaseWell> wells; ///< by row of the table of wells
  std::vector<int> resultRows; ///< of the wells that runs have results of (ResultLayout::wells)
  int periods = 1;             ///< of demand, by year
  MeshQuality mesh;

  /// The name of a well by its row; empty for a row that is not there.
  QString wellName(int row) const;
  /// The one that runs have results of, by its place in ResultLayout::wells; null for none.
  const BaseWell* resultWell(std::size_t place) const;
};

/// Reads the base into the store of this process.
BaseSite baseSite(const StudySetup& study, const StudyFolder& folder);

} // namespace TVR::Study
