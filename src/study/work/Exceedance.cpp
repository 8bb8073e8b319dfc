#include "study/work/Exceedance.h"

#include <algorithm>
#include <optional>

namespace TVR::Study {

namespace {

/// Seven bits a byte, the lowest first; the eighth says that there are more.
void appendNumber(QByteArray& encoded, std::size_t number) {
  for (; number >= 0x80; number >>= 7U)
    encoded.append(static_cast<char>(0x80U | (number & 0x7fU)));
  encoded.append(static_cast<char>(number));
}

class Numbers {
public:
  explicit Numbers(const QByteArray& encoded) : encoded_(encoded) {}

  bool atEnd() const { return position_ == encoded_.size(); }

  std::optional<std::size_t> next() {
    std::size_t number = 0;
    for (unsigned shift = 0; position_ < encoded_.size() && shift < 56; shift += 7) {
      const auto byte = static_cast<unsigned char>(encoded_[position_++]);
      number |= static_cast<std::size_t>(byte & 0x7fU) << shift;
      if ((byte & 0x80U) == 0)
        return number;
    }
    return {};
  }

private:
  const QByteArray& encoded_;
  int position_ = 0;
};

/// Calls `stretch(map, begin, end)` for each stretch of true cells. False if what is encoded is not
/// as many maps.
template <class Stretch>
bool eachStretch(const QByteArray& encoded, std::size_t maps, std::size_t cells, Stretch stretch) {
  Numbers numbers(encoded);
  for (std::size_t map = 0; map < maps; ++map) {
    bool isTrue = false;
    for (std::size_t cell = 0; cell < cells; isTrue = !isTrue) {
      const std::optional<std::size_t> length = numbers.next();
      if (!length || *length > cells - cell)
        return false;
      if (isTrue)
        stretch(map, cell, cell + *length);
      cell += *length;
    }
  }
  return numbers.atEnd();
}

} // namespace

void appendMap(QByteArray& encoded, const std::vector<char>& map) {
  char value = 0;
  for (auto begin = map.begin(); begin != map.end(); value = value == 0 ? 1 : 0) {
    const auto end = std::find_if(begin, map.end(), [&](char cell) { return cell != value; });
    appendNumber(encoded, static_cast<std::size_t>(end - begin));
    begin = end;
  }
}

bool ExceedanceCounts::add(const QByteArray& encoded, std::uint32_t weight) {
  const std::size_t cells = maps.empty() ? 0 : maps.front().size();
  const auto nothing = [](std::size_t, std::size_t, std::size_t) {};
  if (!eachStretch(encoded, maps.size(), cells, nothing))
    return false;
  eachStretch(encoded, maps.size(), cells,
              [&](std::size_t map, std::size_t begin, std::size_t end) {
                for (std::size_t cell = begin; cell < end; ++cell)
                  maps[map][cell] += weight;
              });
  return true;
}

void ExceedanceCounts::add(const ExceedanceCounts& other) {
  for (std::size_t map = 0; map < maps.size(); ++map)
    std::transform(maps[map].begin(), maps[map].end(), other.maps[map].begin(), maps[map].begin(),
                   std::plus<>());
}

} // namespace TVR::Study
