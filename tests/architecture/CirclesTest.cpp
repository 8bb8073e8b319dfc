#include "architecture/Includes.h"

#include <gtest/gtest.h>

namespace TVR {
namespace {

TEST(CirclesTest, noTwoClassesIncludeEachOther) {
  EXPECT_EQ(circlesIn(unitsOf(includesOfSources())), Names{});
}

TEST(CirclesTest, aCircleIsFoundWithAllItsMembers) {
  EXPECT_EQ(circlesIn({{"a", {"b"}}, {"b", {"c"}}, {"c", {"b"}}}), Names{"b c"});
  EXPECT_EQ(circlesIn({{"a", {"b"}}, {"b", {"a", "c"}}, {"c", {"d"}}, {"d", {"c"}}}),
            (Names{"a b", "c d"}));
  EXPECT_EQ(circlesIn({{"a", {"b", "c"}}, {"b", {"c"}}, {"c", {}}}), Names{});
}

TEST(CirclesTest, twoClassesThatKnowEachOtherThroughTheirSourcesAreFound) {
  EXPECT_EQ(circlesIn(unitsOf({{"page/A.cpp", {"page/A.h", "page/B.h"}},
                               {"page/B.cpp", {"page/A.h", "page/B.h"}}})),
            Names{"page/A page/B"});
}

TEST(CirclesTest, aSourceThatIncludesItsHeaderIsNoCircle) {
  EXPECT_EQ(circlesIn(unitsOf({{"page/A.cpp", {"page/A.h"}}, {"page/A.h", {}}})), Names{});
}

} // namespace
} // namespace TVR
