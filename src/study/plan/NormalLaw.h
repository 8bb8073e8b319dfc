#pragma once

namespace TVR::Study {

/// The share of a standard normal law below `z`, which may be infinite.
double normalShare(double z);

/// The value that a share (0 to 1; its ends give infinities) of a standard normal law lies below.
double normalQuantile(double share);

} // namespace TVR::Study
