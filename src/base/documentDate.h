#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace fleetwright {

/// The date that a document made of a file tells, in seconds since 1970, UTC: that of the
/// environment (SOURCE_DATE_EPOCH), by which others have the same bytes again, or else when the
/// file was changed. Nothing where there is no file, and for a time behind the year 9999.
std::optional<std::int64_t> documentDate(const std::filesystem::path& file);

}  // namespace fleetwright
