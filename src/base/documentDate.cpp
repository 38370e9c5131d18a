#include "documentDate.h"

#include <charconv>
#include <chrono>
#include <cstdlib>
#include <string_view>

namespace fleetwright {

namespace {

/// Of the last year that documents have four digits for.
constexpr std::int64_t lastSecond = 253'402'300'799;

std::optional<std::int64_t> environmentDate() {
    const char* const value = std::getenv("SOURCE_DATE_EPOCH");
    const std::string_view text = value == nullptr ? "" : value;
    std::int64_t seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    const bool isDate = error == std::errc() && end == text.data() + text.size() && seconds >= 0 &&
                        seconds <= lastSecond;
    return isDate ? std::optional(seconds) : std::nullopt;
}

}  // namespace

std::optional<std::int64_t> documentDate(const std::filesystem::path& file) {
    if (const auto given = environmentDate()) {
        return given;
    }
    std::error_code notThere;
    const auto changed = std::filesystem::last_write_time(file, notThere);
    if (notThere) {
        return std::nullopt;
    }
#if defined(__cpp_lib_chrono) && __cpp_lib_chrono >= 201907L
    const auto date = std::chrono::clock_cast<std::chrono::system_clock>(changed);
#else
    const auto date = std::chrono::file_clock::to_sys(changed);
#endif
    const std::int64_t seconds =
        std::chrono::floor<std::chrono::seconds>(date).time_since_epoch().count();
    return seconds <= lastSecond ? std::optional(seconds) : std::nullopt;
}

}  // namespace fleetwright
