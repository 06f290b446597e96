// SPDX-License-Identifier: MIT
#include "a2l2json/model/kind_set.h"

#include <cstdint>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"

namespace a2l::test {
namespace {

TEST(KindSet, IsEmptyAtFirst) {
  constexpr KindSet kEmpty;
  for (const ElementKind kind : KindsWithAClass()) EXPECT_FALSE(kEmpty.Contains(kind));
}

TEST(KindSet, HoldsWhatItWasGivenAndNothingElse) {
  for (const ElementKind kind : KindsWithAClass()) {
    const KindSet set = {kind};
    for (const ElementKind other : KindsWithAClass())
      ASSERT_EQ(set.Contains(other), other == kind) << Shown(kind) << " " << Shown(other);
  }
}

TEST(KindSet, GrowsWithoutChangingTheOneItCameFrom) {
  constexpr KindSet kPair = {ElementKind::UNIT, ElementKind::FORMAT};
  constexpr KindSet kThree = kPair.With(KIND_UNKNOWN).With(ElementKind::UNIT);
  EXPECT_TRUE(kThree.Contains(ElementKind::UNIT));
  EXPECT_TRUE(kThree.Contains(ElementKind::FORMAT));
  EXPECT_TRUE(kThree.Contains(KIND_UNKNOWN));
  EXPECT_FALSE(kPair.Contains(KIND_UNKNOWN));
}

TEST(KindSet, NeverHoldsNumbersThatAreNotKinds) {
  KindSet all;
  for (const ElementKind kind : KindsWithAClass()) all = all.With(kind);
  EXPECT_FALSE(all.Contains(KIND_ROOT));
  for (const std::int32_t number : NumbersBesideTheKinds())
    EXPECT_FALSE(all.Contains(static_cast<ElementKind>(number))) << number;
}

}  // namespace
}  // namespace a2l::test
