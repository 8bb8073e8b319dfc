#pragma once

#include "simulator/mesh/FVGridLine.h"
#include "simulator/models/FVGeothermSite.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Verification {

/// A doublet in a regional flow on the grid of another simulator, with what that one computed.
class PeerDoublet {
public:
  /// Reads tests/verification/data/peer_doublet.txt. Throws std::runtime_error if it cannot.
  PeerDoublet();

  enum class Edges {
    OfASite,  ///< pressure and temperature fixed at the outer edges of the first and last cells
    OfThePeer ///< pressure fixed at the centres of these cells, no conduction over their edges
  };
  /// The site with its steady flow handed to the heat model.
  std::unique_ptr<FVGeothermSite> makeSite(Edges edges) const;

  const std::vector<int>& years() const { return years_; } ///< ascending
  /// The peer's temperature [deg C] of element i at the end of one of the years.
  double temperature(int atYear, std::size_t i) const;
  const FVGridLine& x() const { return x_; }
  const FVGridLine& y() const { return y_; }
  std::size_t elementCount() const { return x_.count() * y_.count(); }
  std::size_t productionElement() const { return elementAt(0.0); }
  std::size_t injectionElement() const { return elementAt(60.0); }

private:
  void readLine(const std::string& line);
  std::size_t elementAt(double x) const;

  FVGridLine x_;
  FVGridLine y_;
  std::vector<int> years_;
  /// By year: rows of the lower half, one after the other, below the initial temperature [1e-7 K].
  std::map<int, std::vector<double>> deficits_;
};

} // namespace Verification
