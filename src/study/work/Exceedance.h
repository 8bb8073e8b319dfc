#pragma once

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace TVR::Study {

/// Appends one map, a truth value for each cell of a raster, as the lengths of its stretches of
/// equal cells, beginning with one of false ones.
void appendMap(QByteArray& encoded, const std::vector<char>& map);

/// How often the cells of a raster lie in the plume, by map (ResultLayout::maps) and cell.
struct ExceedanceCounts {
  std::vector<std::vector<std::uint32_t>> maps;

  ExceedanceCounts() = default;
  ExceedanceCounts(std::size_t count, std::size_t cells)
      : maps(count, std::vector<std::uint32_t>(cells)) {}

  /// Adds the encoded maps of a run `weight` times. False, and nothing added, if they are others
  /// than as many whole maps.
  bool add(const QByteArray& encoded, std::uint32_t weight);
  /// Adds counts of the same size.
  void add(const ExceedanceCounts& other);
  bool operator==(const ExceedanceCounts&) const = default;
};

} // namespace TVR::Study
