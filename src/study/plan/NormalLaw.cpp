#include "study/plan/NormalLaw.h"

#include <boost/math/distributions/normal.hpp>
#include <cmath>
#include <limits>

namespace TVR::Study {

double normalShare(double z) {
  return std::isinf(z) ? (z > 0 ? 1.0 : 0.0) : boost::math::cdf(boost::math::normal(), z);
}

double normalQuantile(double share) {
  if (share <= 0 || share >= 1)
    return std::copysign(std::numeric_limits<double>::infinity(), share - 0.5);
  return boost::math::quantile(boost::math::normal(), share);
}

} // namespace TVR::Study
