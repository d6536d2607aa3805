#pragma once

#include "EndToEnd/X11.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>
#include <vector>

#include <xcb/xcb.h>

namespace Faults {

/// Puts letters of many scripts, marks and an emoji onto keys that have no symbol, as far as there are such
/// keys, and returns their symbols. A program has to be started, and an Input made, after.
inline std::vector<xcb_keysym_t> addForeignKeys(const X11 &x)
{
    constexpr xcb_keysym_t kUnicode = 0x1000000;
    constexpr std::u32string_view kLetters = U"фשعλ한漢🚀\u0301\u200f\u200dकあไß€\u202eل";
    const auto *setup = xcb_get_setup(x.connection());
    const xcb_keycode_t first = setup->min_keycode;
    const auto count = static_cast<quint8>(setup->max_keycode - first + 1);
    auto *mapping = xcb_get_keyboard_mapping_reply(
        x.connection(), xcb_get_keyboard_mapping(x.connection(), first, count), nullptr);
    const quint8 width = mapping->keysyms_per_keycode;
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(mapping);
    std::vector<xcb_keysym_t> added;
    for (int key = 0; key < count && added.size() < kLetters.size(); ++key) {
        const xcb_keysym_t *row = symbols + key * width;
        if (std::any_of(row, row + width, [](xcb_keysym_t symbol) { return symbol != XCB_NO_SYMBOL; }))
            continue;
        added.push_back(kUnicode + kLetters[added.size()]);
        const std::array<xcb_keysym_t, 2> both{added.back(), added.back()};
        xcb_change_keyboard_mapping(x.connection(), 1, static_cast<xcb_keycode_t>(first + key), 2,
                                    both.data());
    }
    std::free(mapping);
    x.sync();
    return added;
}

} // namespace Faults
