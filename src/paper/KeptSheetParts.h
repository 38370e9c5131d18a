#pragma once

#include "Silhouette.h"
#include "pageTexts.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>

namespace fleetwright {

/// Texts as they were measured, for the next sheets that say the same: names and rules of systems.
/// Any number of threads may use it.
class KeptTexts {
public:
    using Measure = MeasuredText (*)(std::string_view text);

    /// What `measure` makes of a text.
    std::shared_ptr<const MeasuredText> of(std::string_view text, Measure measure);

private:
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    using Texts =
        std::unordered_map<std::string, std::shared_ptr<const MeasuredText>, Hash, std::equal_to<>>;

    std::mutex m_mutex;
    std::map<Measure, Texts> m_texts;
};

/// What the sheets of one run have in common, and one makes for all.
struct KeptSheetParts {
    Silhouette::Outlines outlines;
    KeptTexts texts;
};

}  // namespace fleetwright
