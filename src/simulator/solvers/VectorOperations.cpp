#include "simulator/solvers/VectorOperations.h"

#include "simulator/balance/WideVectors.h"

#include <nvector/nvector_serial.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace {

std::size_t length(N_Vector vector) {
  return static_cast<std::size_t>(NV_LENGTH_S(vector));
}

// An operand may be the result at the same time. Entry by entry that does no harm, but the compiler
// can't know it: hence the pragmas.

TVR_WIDE_VECTORS void sumUp(double a, const double* xs, double b, const double* ys, double* zs,
                            std::size_t n) {
  if (a == 1.0 && b == 1.0) {
#pragma GCC ivdep
    for (std::size_t i = 0; i < n; ++i)
      zs[i] = xs[i] + ys[i];
  } else if (a == 1.0) {
#pragma GCC ivdep
    for (std::size_t i = 0; i < n; ++i)
      zs[i] = xs[i] + b * ys[i];
  } else {
#pragma GCC ivdep
    for (std::size_t i = 0; i < n; ++i)
      zs[i] = a * xs[i] + b * ys[i];
  }
}

void linearSum(double a, N_Vector x, double b, N_Vector y, N_Vector z) {
  sumUp(a, NV_DATA_S(x), b, NV_DATA_S(y), NV_DATA_S(z), length(z));
}

void constant(double c, N_Vector z) {
  std::fill_n(NV_DATA_S(z), length(z), c);
}

TVR_WIDE_VECTORS void scale(double c, N_Vector x, N_Vector z) {
  const double* xs = NV_DATA_S(x);
  double* zs = NV_DATA_S(z);
  const std::size_t n = length(z);
  if (c == 1.0) {
    if (xs != zs)
      std::copy_n(xs, n, zs);
    return;
  }
#pragma GCC ivdep
  for (std::size_t i = 0; i < n; ++i)
    zs[i] = c * xs[i];
}

TVR_WIDE_VECTORS void absolute(N_Vector x, N_Vector z) {
  const double* xs = NV_DATA_S(x);
  double* zs = NV_DATA_S(z);
  const std::size_t n = length(z);
#pragma GCC ivdep
  for (std::size_t i = 0; i < n; ++i)
    zs[i] = std::abs(xs[i]);
}

TVR_WIDE_VECTORS void inverse(N_Vector x, N_Vector z) {
  const double* xs = NV_DATA_S(x);
  double* zs = NV_DATA_S(z);
  const std::size_t n = length(z);
#pragma GCC ivdep
  for (std::size_t i = 0; i < n; ++i)
    zs[i] = 1.0 / xs[i];
}

TVR_WIDE_VECTORS void addConstant(N_Vector x, double b, N_Vector z) {
  const double* xs = NV_DATA_S(x);
  double* zs = NV_DATA_S(z);
  const std::size_t n = length(z);
#pragma GCC ivdep
  for (std::size_t i = 0; i < n; ++i)
    zs[i] = xs[i] + b;
}

double minimum(N_Vector x) {
  const double* xs = NV_DATA_S(x);
  return *std::min_element(xs, xs + length(x));
}

TVR_WIDE_VECTORS double weightedSquares(N_Vector x, N_Vector w) {
  const double* xs = NV_DATA_S(x);
  const double* ws = NV_DATA_S(w);
  return wideSum(length(x), [=](std::size_t i) {
    const double product = xs[i] * ws[i];
    return product * product;
  });
}

double weightedRootMeanSquare(N_Vector x, N_Vector w) {
  return std::sqrt(weightedSquares(x, w) / static_cast<double>(length(x)));
}

// Of the sums of several vectors, one block after the other is done, which stays in the cache.
constexpr std::size_t blockLength = 1024;

// The result may be the first operand, but no other one.
int linearCombination(int count, double* factors, N_Vector* vectors, N_Vector z) {
  if (count == 1) {
    scale(factors[0], vectors[0], z);
    return 0;
  }
  for (std::size_t begin = 0; begin < length(z); begin += blockLength) {
    const std::size_t n = std::min(blockLength, length(z) - begin);
    double* zs = NV_DATA_S(z) + begin;
    sumUp(factors[0], NV_DATA_S(vectors[0]) + begin, factors[1], NV_DATA_S(vectors[1]) + begin, zs,
          n);
    for (int k = 2; k < count; ++k)
      sumUp(1.0, zs, factors[k], NV_DATA_S(vectors[k]) + begin, zs, n);
  }
  return 0;
}

int scaleAddMulti(int count, double* factors, N_Vector x, N_Vector* y, N_Vector* z) {
  for (std::size_t begin = 0; begin < length(x); begin += blockLength) {
    const std::size_t n = std::min(blockLength, length(x) - begin);
    for (int k = 0; k < count; ++k)
      sumUp(1.0, NV_DATA_S(y[k]) + begin, factors[k], NV_DATA_S(x) + begin, NV_DATA_S(z[k]) + begin,
            n);
  }
  return 0;
}

// Entries begin at the start of a line of the cache, so that no vector instruction crosses two.
N_Vector clone(N_Vector vector) {
  constexpr std::size_t lineOfCache = 64;
  N_Vector copy = N_VCloneEmpty_Serial(vector);
  if (!copy)
    return nullptr;
  const std::size_t bytes = length(vector) * sizeof(double);
  NV_DATA_S(copy) = static_cast<double*>(
      std::aligned_alloc(lineOfCache, (bytes + lineOfCache - 1) / lineOfCache * lineOfCache));
  NV_OWN_DATA_S(copy) = SUNTRUE;
  if (NV_DATA_S(copy) || bytes == 0)
    return copy;
  N_VDestroy_Serial(copy);
  return nullptr;
}

} // namespace

void useFastOperations(N_Vector vector) {
  N_Vector_Ops operations = vector->ops;
  operations->nvclone = clone;
  operations->nvlinearsum = linearSum;
  operations->nvconst = constant;
  operations->nvscale = scale;
  operations->nvabs = absolute;
  operations->nvinv = inverse;
  operations->nvaddconst = addConstant;
  operations->nvmin = minimum;
  operations->nvwrmsnorm = weightedRootMeanSquare;
  operations->nvwsqrsumlocal = weightedSquares;
  operations->nvlinearcombination = linearCombination;
  operations->nvscaleaddmulti = scaleAddMulti;
}
