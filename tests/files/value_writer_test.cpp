// SPDX-License-Identifier: GPL-3.0-or-later
// The form in which values stand in a file.
#include "files/value_writer.h"

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "files/value_reader.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

/// What `write` puts into a file.
template <class Write>
std::string Written(const Write& write) {
    const TemporaryFolder folder;
    {
        OutputFile file(folder / "values.kvl");
        ValueWriter writer(file);
        write(writer);
        file.Close();
    }
    return Content_Of(folder / "values.kvl");
}

TEST(ValueWriter, PutsTextInQuotesAndOneValueOnALine) {
    EXPECT_EQ(Written([](ValueWriter& file) {
                  file.Write(std::string_view("Model_1"));
                  file.Write(std::string_view(""));
                  file.Write(std::string_view("a, b"));
                  file.Write(std::string_view("M\xC3\xBCller"));
              }),
              "\"Model_1\"\r\n\"\"\r\n\"a, b\"\r\n\"M\xC3\xBCller\"\r\n");
}

TEST(ValueWriter, DoesNotGuardAQuoteWithinAText) {
    EXPECT_EQ(Written([](ValueWriter& file) { file.Write(std::string_view("5\" crank")); }),
              "\"5\" crank\"\r\n");
}

TEST(ValueWriter, PutsNumbersWithAPointAndAsShortAsTheyCanBe) {
    const struct {
        float value;
        const char* text;
    } cases[] = {
        {9.375F, "9.375"},
        {360, "360"},
        {-5, "-5"},
        {0, "0"},
        {0.05F, "0.05"},
        {0.003F, "0.003"},
        {1E-4F, "0.0001"},
        {9.9E-5F, "9.9E-05"},
        {1.5E-5F, "1.5E-05"},
        {9999999, "9999999"},
        {1E7F, "1E+07"},
        {2E7F, "2E+07"},
        {-1.25E9F, "-1.25E+09"},
        {1.0F / 3, "0.33333334"},
        {16777216, "1.6777216E+07"},
        {std::numeric_limits<float>::max(), "3.4028235E+38"},
        {std::numeric_limits<float>::denorm_min(), "1E-45"},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(Written([value = value](ValueWriter& file) { file.Write(value); }),
                  std::string(text) + "\r\n");
}

TEST(ValueWriter, PutsIntegersFlagsRowsAndReservedLines) {
    EXPECT_EQ(Written([](ValueWriter& file) {
                  file.Write(std::int32_t{-1});
                  file.Write(std::int32_t{100000});
                  file.Write(true);
                  file.Write(false);
                  file.Write_Row(1.5F, -2, 3E-5F);
                  file.Write_Reserved(2);
              }),
              "-1\r\n100000\r\n#TRUE#\r\n#FALSE#\r\n1.5,-2,3E-05\r\n\"\"\r\n\"\"\r\n");
}

TEST(ValueWriter, EverySingleReadsBackToItsOwnBits) {
    std::mt19937 bits(20250301);
    std::vector<float> numbers;
    while (numbers.size() < 20000) {
        const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(bits()));
        if (std::isfinite(number)) numbers.push_back(number);
    }
    ValueReader file(Written([&](ValueWriter& writer) {
        for (const float number : numbers) writer.Write(number);
    }));
    for (const float number : numbers) {
        float back = 0;
        file.Read(back);
        ASSERT_EQ(std::bit_cast<std::uint32_t>(back), std::bit_cast<std::uint32_t>(number)) << number;
    }
    EXPECT_TRUE(file.At_End());
}

}  // namespace
}  // namespace kervol
