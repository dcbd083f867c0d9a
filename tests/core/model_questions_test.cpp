// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/model_questions.h"

#include <utility>

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(HasStage2, IsTrueOfTheTwoChainsAlone) {
    LinkageModel model;
    for (const char* chain : {"W", "S"}) {
        model.LinkageType = chain;
        EXPECT_TRUE(Has_Stage2(model)) << chain;
    }
    for (const char* other : {"", "w", "WS", "X"}) {
        model.LinkageType = other;
        EXPECT_FALSE(Has_Stage2(model)) << other;
    }
}

TEST(LastStep, IsNeverBeyondTheTables) {
    LinkageModel model;
    for (const auto& [steps, last] : {std::pair{-1, -1}, {0, 0}, {1024, 1024}, {1025, 1024}, {32767, 1024}}) {
        model.NumSteps = static_cast<std::int16_t>(steps);
        EXPECT_EQ(Last_Step(model), last) << steps;
    }
}

}  // namespace
}  // namespace kervol
