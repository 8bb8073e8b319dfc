#pragma once

#include <cstddef>
#include <cstring>

/// Marks a function that is also compiled for processors with vectors of four doubles; which of the
/// two forms runs is decided when the program starts. Both do the same operations in the same
/// order, so that results do not depend on the processor. Left out where it is not known to work:
/// on other systems, and under the sanitizers, which start later than the choice is made.
#if defined(__x86_64__) && defined(__gnu_linux__) && defined(__GNUC__) && !defined(__clang__) &&   \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define TVR_WIDE_VECTORS [[gnu::target_clones("avx2", "default")]]
#else
#define TVR_WIDE_VECTORS
#endif

/// Four doubles side by side.
inline constexpr std::size_t lanes = 4;
using Lanes [[gnu::vector_size(lanes * sizeof(double))]] = double;

// Vectors go by reference: how they are returned depends on the processor.
[[gnu::always_inline]] inline void load(const double* values, Lanes& into) {
  std::memcpy(&into, values, sizeof into);
}

[[gnu::always_inline]] inline void store(const Lanes& values, double* into) {
  std::memcpy(into, &values, sizeof values);
}

/// Sum of term(i) for i below `count`, in sixteen parts side by side, since each addition to one
/// part waits for the last one.
template <class Term>
[[gnu::always_inline]] inline double wideSum(std::size_t count, Term term) {
  constexpr std::size_t width = 4 * lanes;
  double parts[width] = {};
  std::size_t i = 0;
  for (; i + width <= count; i += width)
    for (std::size_t k = 0; k < width; ++k)
      parts[k] += term(i + k);
  double sum = 0.0;
  for (; i < count; ++i)
    sum += term(i);
  for (const double part : parts)
    sum += part;
  return sum;
}
