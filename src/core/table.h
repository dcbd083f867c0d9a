// SPDX-License-Identifier: GPL-3.0-or-later
// Fixed-shape tables whose every access is checked against the declared bounds.
#pragma once

#include <array>
#include <cstddef>

#include "core/fault.h"

namespace kervol {

template <class T, std::size_t N, std::size_t... Rest>
class Table;

/// What a table of shape N x Rest... is made of: rows that are tables themselves, or plain values at the end.
template <class T, std::size_t... Rest>
struct TableElement {
    using Type = Table<T, Rest...>;
};
template <class T>
struct TableElement<T> {
    using Type = T;
};

/// Zero-based table of shape N x Rest...; an index outside raises fault 9.
///
/// `table(i)` of a table of several dimensions is its row i: a loop that works on one row takes it once, and
/// the checks of constant column numbers then cost nothing.
template <class T, std::size_t N, std::size_t... Rest>
class Table {
    using Element = typename TableElement<T, Rest...>::Type;

  public:
    Element& operator()(std::ptrdiff_t i) { return elements_[Checked(i)]; }
    const Element& operator()(std::ptrdiff_t i) const { return elements_[Checked(i)]; }

    template <class... Index>
    auto& operator()(std::ptrdiff_t i, std::ptrdiff_t j, Index... rest) {
        return elements_[Checked(i)](j, rest...);
    }
    template <class... Index>
    const auto& operator()(std::ptrdiff_t i, std::ptrdiff_t j, Index... rest) const {
        return elements_[Checked(i)](j, rest...);
    }

    void Fill(const T& value) {
        for (Element& element : elements_) {
            if constexpr (sizeof...(Rest) == 0)
                element = value;
            else
                element.Fill(value);
        }
    }

    static constexpr std::size_t Size() { return N; }
    auto begin() const { return elements_.begin(); }
    auto end() const { return elements_.end(); }

    bool operator==(const Table&) const = default;

  private:
    /// A negative index becomes a huge one, so that a single comparison checks both bounds.
    static std::size_t Checked(std::ptrdiff_t i) {
        const auto index = static_cast<std::size_t>(i);
        if (index >= N) [[unlikely]]
            Raise(fault::Subscript);
        return index;
    }

    std::array<Element, N> elements_{};
};

}  // namespace kervol
