#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// Whether bytes in letters are all in one line, or in lines that people can look at.
enum class Base64Lines { One, Many };

/// Bytes in letters, digits, "+", "/" and "=" alone.
std::string toBase64(std::string_view bytes, Base64Lines lines = Base64Lines::Many);

/// The bytes that such a text means; white space in it means nothing. Nothing if it is none, or if
/// something is missing at its end.
std::optional<std::string> fromBase64(std::string_view text);

}  // namespace fleetwright
