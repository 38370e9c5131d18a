#pragma once

#include "Silhouette.h"
#include "pageTexts.h"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace fleetwright {

/// Texts as they were measured, for the next sheets that say the same: names and rules of systems.
/// Any number of threads may use it.
class KeptTexts {
public:
    std::shared_ptr<const MeasuredText> of(std::string_view text, PageFont font);

private:
    using Texts = std::map<std::string, std::shared_ptr<const MeasuredText>, std::less<>>;

    std::mutex m_mutex;
    std::array<Texts, 2> m_texts;  // by the font
};

/// What the sheets of one run have in common, and one makes for all.
struct KeptSheetParts {
    Silhouette::Outlines outlines;
    KeptTexts texts;
};

}  // namespace fleetwright
