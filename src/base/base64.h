#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// Bytes in letters, digits, "+", "/" and "=" alone, in lines that people can look at.
std::string toBase64(std::string_view bytes);

/// The bytes that such a text means; white space in it means nothing. Nothing if it is none, or if
/// something is missing at its end.
std::optional<std::string> fromBase64(std::string_view text);

}  // namespace fleetwright
