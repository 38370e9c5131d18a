#pragma once

// The files of data/play, which are compiled in.

#include <string_view>

namespace fleetwright {

/// The page, with "{{name}}" for what is put into it.
extern const std::string_view playPageFile;
extern const std::string_view playStyle;
extern const std::string_view playScript;
/// The SHA-256 hashes of these, hexadecimal.
extern const std::string_view playStyleHash;
extern const std::string_view playScriptHash;

}  // namespace fleetwright
