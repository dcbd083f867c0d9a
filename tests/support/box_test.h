// SPDX-License-Identifier: GPL-3.0-or-later
// Base of the fixtures whose programs may show boxes: a box that no test expected fails it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "headless/recording_port.h"

#include <gtest/gtest.h>

namespace kervol {

class BoxTest : public ::testing::Test {
  protected:
    /// The boxes that the port shows; the fixture that derives from this owns it.
    explicit BoxTest(const RecordingPort& shown) : shown_(shown) {}
    void TearDown() override;

    /// The next box that was shown must be this one.
    void Expect_Box(std::string_view text, Icon icon = Icon::None, Buttons buttons = Buttons::OK);
    /// The next box must report this fault; only the heading is compared.
    void Expect_Fault(std::int32_t number, std::string_view procedure);
    /// The next box, whatever it is.
    MessageBox Take_Box();
    std::size_t Boxes_Left() const { return shown_.messages.size() - taken_; }

  private:
    const RecordingPort& shown_;
    std::size_t taken_ = 0;
};

}  // namespace kervol
