// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/box_test.h"

#include <string>

#include "core/fault.h"

namespace kervol {

void BoxTest::TearDown() {
    while (Boxes_Left() > 0) ADD_FAILURE() << "A box that the test did not expect: " << Take_Box().text;
}

void BoxTest::Expect_Box(std::string_view text, Icon icon, Buttons buttons) {
    const MessageBox box = Take_Box();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.icon, icon);
    EXPECT_EQ(box.buttons, buttons);
}

void BoxTest::Expect_Fault(std::int32_t number, std::string_view procedure) {
    const std::string heading = "Error " + std::to_string(number) + "   (" +
                                std::string(Fault_Description(number)) + ")  has occurred in " +
                                std::string(procedure) + "\r\r";
    const MessageBox box = Take_Box();
    EXPECT_EQ(box.text.substr(0, heading.size()), heading);
    EXPECT_EQ(box.buttons, Buttons::OK);
}

MessageBox BoxTest::Take_Box() {
    if (Boxes_Left() > 0) return shown_.messages[taken_++].box;
    ADD_FAILURE() << "A box that the test expected was not shown";
    return {};
}

}  // namespace kervol
