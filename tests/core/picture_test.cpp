// SPDX-License-Identifier: GPL-3.0-or-later
// Which world windows a picture takes.
#include "core/picture.h"

#include <limits>

#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(PictureScale, IsTakenEitherWayRound) {
    EXPECT_NO_THROW(Check_Scale(-1, 2, 3, -4));
    EXPECT_NO_THROW(Check_Scale(3, -4, -1, 2));
}

TEST(PictureScale, NeedsAnExtentBothWays) {
    Expect_Thrown(5, "", [] { Check_Scale(1, 0, 1, 5); });
    Expect_Thrown(5, "", [] { Check_Scale(0, 2, 5, 2); });
}

TEST(PictureScale, HasToFitSinglePrecision) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    EXPECT_NO_THROW(Check_Scale(-kLargest, kLargest, kLargest, -kLargest));
    const double too_large[] = {1.001 * kLargest, -1.001 * kLargest, 1e300,
                                std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()};
    for (const double bound : too_large) {
        Expect_Thrown(5, "", [&] { Check_Scale(bound, 0, 1, 1); });
        Expect_Thrown(5, "", [&] { Check_Scale(0, bound, 1, 1); });
        Expect_Thrown(5, "", [&] { Check_Scale(0, 0, bound, 1); });
        Expect_Thrown(5, "", [&] { Check_Scale(0, 0, 1, bound); });
    }
}

TEST(Refusal, IsTheFaultOfThatNumberAlone) {
    EXPECT_TRUE(Refuses(5, [] { Raise(5); }));
    EXPECT_FALSE(Refuses(5, [] {}));
    Expect_Thrown(6, "", [] { Refuses(5, [] { Raise(6); }); });
}

}  // namespace
}  // namespace kervol
