#include "KeptSheetParts.h"

#include <cstddef>
#include <utility>

namespace fleetwright {

std::shared_ptr<const MeasuredText> KeptTexts::of(std::string_view text, Measure measure) {
    constexpr std::size_t most = 2048;  // of about 500 bytes
    const std::lock_guard lock(m_mutex);
    Texts& texts = m_texts[measure];
    if (const auto known = texts.find(text); known != texts.end()) {
        return known->second;
    }
    if (texts.size() >= most) {
        texts.clear();
    }
    auto measured = std::make_shared<const MeasuredText>(measure(text));
    return texts.emplace(std::string(text), std::move(measured)).first->second;
}

}  // namespace fleetwright
