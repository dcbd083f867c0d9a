// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/value_writer.h"

#include <string>

#include "core/number_text.h"

namespace kervol {

void ValueWriter::Write(std::string_view text) {
    file_.Write("\"");
    file_.Write(text);
    Write_Line("\"");
}

void ValueWriter::Write(float number) {
    Write_Line(Plain_Number(number));
}

void ValueWriter::Write(std::int32_t number) {
    Write_Line(std::to_string(number));
}

void ValueWriter::Write(bool flag) {
    Write_Line(flag ? "#TRUE#" : "#FALSE#");
}

void ValueWriter::Write_Row(float first, float second, float third) {
    Write_Line(Plain_Number(first) + "," + Plain_Number(second) + "," + Plain_Number(third));
}

void ValueWriter::Write_Reserved(int count) {
    for (int i = 0; i < count; ++i) Write(std::string_view());
}

void ValueWriter::Write_Line(std::string_view line) {
    file_.Write(line);
    file_.Write("\r\n");
}

}  // namespace kervol
