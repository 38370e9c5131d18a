#pragma once

#include "FontSubset.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <vector>

namespace fleetwright {

struct Drawing;

/// Parts of SVG files as they stand there, for the next files that have the same in them: as many
/// as the sheets of some hundred ships take. Any number of threads may use it.
class KeptSvgParts {
public:
    using Part = std::shared_ptr<const std::string>;
    using Make = std::function<std::string()>;

    /// What `make` makes of these signs of a face.
    Part font(PageFace face, const std::vector<FontSubset::Sign>& signs, const Make& make) {
        static_assert(std::has_unique_object_representations_v<FontSubset::Sign>);
        const auto* const bytes = reinterpret_cast<const char*>(signs.data());
        std::string key(1, static_cast<char>(face));
        key.append(bytes, signs.size() * sizeof(FontSubset::Sign));
        return m_fonts.of(key, make);
    }
    /// What `make` makes of a drawing.
    Part drawing(const std::shared_ptr<const Drawing>& drawing, const Make& make) {
        return m_drawings.of(drawing, make);
    }

private:
    template <typename Key>
    class Kept {
    public:
        Part of(const Key& key, const Make& make);

    private:
        std::mutex m_mutex;
        std::unordered_map<Key, Part> m_parts;
    };

    Kept<std::string> m_fonts;  // by the face and the signs, byte for byte
    Kept<std::shared_ptr<const Drawing>> m_drawings;
};

template <typename Key>
KeptSvgParts::Part KeptSvgParts::Kept<Key>::of(const Key& key, const Make& make) {
    {
        const std::lock_guard lock(m_mutex);
        if (const auto known = m_parts.find(key); known != m_parts.end()) {
            return known->second;
        }
    }
    const auto made = std::make_shared<const std::string>(make());
    const std::lock_guard lock(m_mutex);
    constexpr std::size_t most = 512;  // of about 10 KB
    if (m_parts.size() >= most) {
        m_parts.clear();
    }
    return m_parts.try_emplace(key, made).first->second;
}

}  // namespace fleetwright
