// SPDX-License-Identifier: GPL-3.0-or-later
// JSON as text. Numbers are the shortest decimals that read back to the same single, which common JSON
// libraries do not write.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/number_text.h"
#include "core/table.h"

namespace kervol {

class JsonWriter {
  public:
    /// The text so far; complete once every object and list is closed.
    const std::string& Text() const { return text_; }

    void Begin_Object() { Open('{'); }
    void End_Object() { Close('}'); }
    void Begin_List() { Open('['); }
    void End_List() { Close(']'); }
    void Key(std::string_view name);

    /// `text` is UTF-8.
    void Value(std::string_view text);
    void Value(const char* text) { Value(std::string_view(text)); }
    void Value(bool flag) { Put(flag ? "true" : "false"); }
    void Value(float number) { Put(Plain_Number(number)); }
    void Value(double number) { Put(Plain_Number(number)); }
    void Value(std::integral auto number) { Put(std::to_string(number)); }

    /// A table as nested lists.
    template <class T, std::size_t... Dims>
    void Value(const Table<T, Dims...>& table) {
        Begin_List();
        for (const auto& element : table) Value(element);
        End_List();
    }

    template <class T>
    void Member(std::string_view name, const T& value) {
        Key(name);
        Value(value);
    }

  private:
    void Open(char bracket);
    void Close(char bracket);
    void Put(std::string_view token);
    void Separate();

    std::string text_;
    bool needs_comma_ = false;
};

}  // namespace kervol
