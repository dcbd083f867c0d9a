// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/json_writer.h"

#include <array>
#include <cstdio>

namespace kervol {
namespace {

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            quoted += '\\';
            quoted += c;
        } else if (byte < 0x20) {
            std::array<char, 8> escape;
            static_cast<void>(std::snprintf(escape.data(), escape.size(), "\\u%04x", unsigned{byte}));
            quoted += escape.data();
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

}  // namespace

void JsonWriter::Key(std::string_view name) {
    Separate();
    text_ += Quoted(name);
    text_ += ':';
    needs_comma_ = false;
}

void JsonWriter::Value(std::string_view text) {
    Put(Quoted(text));
}

void JsonWriter::Open(char bracket) {
    Separate();
    text_ += bracket;
    needs_comma_ = false;
}

void JsonWriter::Close(char bracket) {
    text_ += bracket;
    needs_comma_ = true;
}

void JsonWriter::Put(std::string_view token) {
    Separate();
    text_ += token;
    needs_comma_ = true;
}

void JsonWriter::Separate() {
    if (needs_comma_) text_ += ',';
}

}  // namespace kervol
