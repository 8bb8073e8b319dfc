#include "contour/GridMesh.h"
#include "contour/IsolineTracing.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

using namespace TVR::Contour;

/// Values of any kind from a row of bytes; 0 when they have run out.
class Bytes {
public:
  Bytes(const std::uint8_t* bytes, std::size_t size) : next_(bytes), end_(bytes + size) {}

  bool isEmpty() const { return next_ == end_; }
  int small() { return isEmpty() ? 0 : *next_++; }
  /// A number that is often a small one, sometimes any, finite or not.
  double number() {
    const int kind = small();
    if (kind < 0xf0)
      return kind / 8 - 8;
    double value = 0;
    if (end_ - next_ >= static_cast<std::ptrdiff_t>(sizeof value)) {
      std::memcpy(&value, next_, sizeof value);
      next_ += sizeof value;
    }
    return value;
  }

private:
  const std::uint8_t* next_;
  const std::uint8_t* end_;
};

bool isSound(const Isoline& line) {
  int begin = 0;
  for (int end : line.breaks) {
    if (end - begin < 2)
      return false;
    begin = end;
  }
  return line.breaks.isEmpty() ? line.points.size() != 1
                               : line.breaks.size() > 1 && begin == line.points.size();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  return 0;
}

/// A mesh of nodes, cells and values, in this order, each after its count. A count above 200 takes
/// the nodes or cells of a mesh in rows instead.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes bytes(data, size);
  GridMesh mesh;
  const double level = bytes.number();
  const int columns = 1 + bytes.small() % 8;
  const int nodes = bytes.small();
  for (int i = 0; i < nodes; ++i)
    mesh.nodes.push_back(nodes > 200 ? QPointF(i % (columns + 1), i / (columns + 1))
                                     : QPointF(bytes.number(), bytes.number()));
  const int cells = bytes.small();
  for (int i = 0; i < cells; ++i) {
    const int node = i + i / columns;
    if (cells > 200)
      mesh.cells.push_back({node, node + 1, node + columns + 2, node + columns + 1});
    else
      mesh.cells.push_back(
          {bytes.small() - 4, bytes.small() - 4, bytes.small() - 4, bytes.small() - 4});
  }
  const int centres = bytes.small();
  for (int i = 0; i < centres; ++i)
    mesh.centres.push_back({bytes.number(), bytes.number()});
  std::vector<double> values;
  while (!bytes.isEmpty())
    values.push_back(bytes.number());
  for (const Isoline& line : traceIsolines(mesh, values, {level, 0.0}))
    if (!isSound(line))
      std::abort();
  return 0;
}
