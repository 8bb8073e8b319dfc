#include "simulator/solvers/VectorOperations.h"

#include <gtest/gtest.h>
#include <nvector/nvector_serial.h>
#include <sundials/sundials_context.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

namespace {

constexpr int length = 43; // no multiple of what one turn of a loop takes

/// The packaged operations and this project's, on vectors of the same content.
class VectorOperations : public testing::Test {
protected:
  using Operation = std::function<void(std::array<N_Vector, 3>&)>;

  VectorOperations() { SUNContext_Create(nullptr, &context_); }
  ~VectorOperations() override { SUNContext_Free(&context_); }

  std::vector<double> resultOf(const Operation& operation, bool fast) {
    N_Vector first = N_VNew_Serial(length, context_);
    if (fast)
      useFastOperations(first);
    std::array<N_Vector, 3> vectors{first, N_VClone(first), N_VClone(first)};
    for (int k = 0; k < 3; ++k)
      for (int i = 0; i < length; ++i)
        NV_Ith_S(vectors[k], i) = std::sin(1.0 + i + 20.0 * k) + (k == 1 ? 2.0 : 0.0);
    operation(vectors);
    std::vector<double> result;
    for (N_Vector vector : vectors) {
      result.insert(result.end(), NV_DATA_S(vector), NV_DATA_S(vector) + length);
      N_VDestroy(vector);
    }
    return result;
  }

  void expectSame(const Operation& operation) {
    const std::vector<double> packaged = resultOf(operation, false);
    const std::vector<double> fast = resultOf(operation, true);
    for (std::size_t i = 0; i < packaged.size(); ++i)
      EXPECT_NEAR(fast[i], packaged[i], 1e-15 * (1.0 + std::abs(packaged[i]))) << i;
  }

  SUNContext context_ = nullptr;
};

struct Destroy {
  void operator()(N_Vector vector) const { N_VDestroy(vector); }
};
using Vector = std::unique_ptr<std::remove_pointer_t<N_Vector>, Destroy>;

} // namespace

TEST_F(VectorOperations, cloneHasRoomOfItsOwnFromTheStartOfALineOfTheCache) {
  const Vector first(N_VNew_Serial(length, context_));
  useFastOperations(first.get());
  N_VConst(1.0, first.get());
  const Vector copy(N_VClone(first.get()));
  const Vector copyOfCopy(N_VClone(copy.get()));
  for (const N_Vector vector : {copy.get(), copyOfCopy.get()}) {
    EXPECT_EQ(NV_LENGTH_S(vector), length);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(NV_DATA_S(vector)) % 64, 0u);
    N_VConst(2.0, vector);
  }
  EXPECT_EQ(NV_Ith_S(first.get(), length - 1), 1.0);
}

TEST_F(VectorOperations, cloneOfAVectorWithoutEntriesHasNone) {
  const Vector first(N_VNew_Serial(0, context_));
  useFastOperations(first.get());
  const Vector copy(N_VClone(first.get()));
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(NV_LENGTH_S(copy.get()), 0);
  N_VConst(1.0, copy.get());
}

#ifndef __SANITIZE_ADDRESS__ // which ends the program when memory is short
TEST_F(VectorOperations, cloneThatFindsNoMemoryIsNone) {
  const Vector first(N_VNewEmpty_Serial(sunindextype(1) << 46, context_)); // 512 TiB of entries
  ASSERT_NE(first, nullptr);
  useFastOperations(first.get());
  EXPECT_EQ(first->ops->nvclone(first.get()), nullptr); // N_VClone itself expects a vector
}
#endif

TEST_F(VectorOperations, linearSumsAgreeAlsoIntoAnOperand) {
  for (const double a : {1.0, -1.0, 2.5})
    for (const double b : {1.0, -1.0, 0.3})
      for (const int target : {0, 1, 2})
        expectSame([=](auto& v) { N_VLinearSum(a, v[0], b, v[1], v[target]); });
}

TEST_F(VectorOperations, scalingsAgreeAlsoIntoTheOperand) {
  for (const double c : {1.0, -1.0, 0.3})
    for (const int target : {0, 2})
      expectSame([=](auto& v) { N_VScale(c, v[0], v[target]); });
}

TEST_F(VectorOperations, entryByEntryOperationsAgree) {
  expectSame([](auto& v) { N_VConst(4.0, v[0]); });
  expectSame([](auto& v) { N_VAbs(v[0], v[2]); });
  expectSame([](auto& v) { N_VInv(v[1], v[1]); });
  expectSame([](auto& v) { N_VAddConst(v[0], 7.0, v[0]); });
}

TEST_F(VectorOperations, normsAndMinimaAgree) {
  expectSame([](auto& v) { N_VConst(N_VWrmsNorm(v[0], v[1]), v[2]); });
  expectSame([](auto& v) { N_VConst(N_VWSqrSumLocal(v[0], v[1]), v[2]); });
  expectSame([](auto& v) { N_VConst(N_VMin(v[0]), v[2]); });
}

TEST_F(VectorOperations, combinationsOfSeveralVectorsAgree) {
  std::array<double, 3> factors{0.5, -2.0, 3.0};
  for (const int count : {1, 2, 3})
    expectSame([&](auto& v) { N_VLinearCombination(count, factors.data(), v.data(), v[0]); });
  expectSame([&](auto& v) { N_VScaleAddMulti(2, factors.data(), v[0], &v[1], &v[1]); });
}
