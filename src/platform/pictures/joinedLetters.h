#pragma once

#include <string>
#include <string_view>

namespace fleetwright {

/// The characters whose pictures show an Arabic letter joined to its neighbours, its ligatures
/// included; none for letters that are not joined. With them in a font without tables for scripts,
/// programs join the letters by themselves.
std::u32string joinedForms(char32_t letter);

/// Whether letters of a text may be joined, so that it is narrower than its letters alone.
bool mayJoin(std::string_view text);

}  // namespace fleetwright
