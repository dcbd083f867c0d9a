// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/program_test.h"

#include <string>

#include "core/fault.h"
#include "startup/launch.h"

namespace kervol {

ProgramTest::ProgramTest()
    : program(std::make_unique<Program>(port)), model(program->model), tables(program->tables) {
    Start_Fresh(*program);
    model.StartingUp = false;
}

void ProgramTest::TearDown() {
    while (Boxes_Left() > 0) ADD_FAILURE() << "A box that the test did not expect: " << Take_Box().text;
}

void ProgramTest::Expect_Box(std::string_view text, Icon icon, Buttons buttons) {
    const MessageBox box = Take_Box();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.icon, icon);
    EXPECT_EQ(box.buttons, buttons);
}

void ProgramTest::Expect_Fault(std::int32_t number, std::string_view procedure) {
    const std::string heading = "Error " + std::to_string(number) + "   (" +
                                std::string(Fault_Description(number)) + ")  has occurred in " +
                                std::string(procedure) + "\r\r";
    const std::string text = Take_Box().text;
    EXPECT_EQ(text.substr(0, heading.size()), heading);
}

MessageBox ProgramTest::Take_Box() {
    if (Boxes_Left() > 0) return port.messages[taken_++].box;
    ADD_FAILURE() << "A box that the test expected was not shown";
    return {};
}

}  // namespace kervol
