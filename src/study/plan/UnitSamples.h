#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace TVR::Study {

/// Points of the unit cube, a column for each dimension, all of one length. Each number lies
/// between 0 and 1, both excluded.
using Columns = std::vector<std::vector<double>>;

/// Points of which each of `count` equal shares of each dimension holds one, at a random place in
/// it. The same points for the same seed, on every machine.
Columns latinHypercube(std::size_t count, std::size_t dimensions, std::uint64_t seed);

constexpr std::size_t mostSobolDimensions = 3667;

/// The first points of the Sobol' sequence (behind its origin) with the direction numbers of Joe
/// and Kuo (2008); a seed other than 0 shifts them at random, digit by digit, which keeps their
/// even spread. More points go on from fewer. At most `mostSobolDimensions`.
Columns sobolPoints(std::size_t count, std::size_t dimensions, std::uint64_t seed);

/// All combinations of the midpoints of equal shares of each dimension; the last one runs fastest.
/// The caller sees to it that there are not too many.
Columns gridPoints(const std::vector<std::size_t>& shares);

} // namespace TVR::Study
