#include "momentDelta.h"

#include <algorithm>
#include <cstdint>

namespace fleetwright {

namespace {

constexpr unsigned wordBits = 7, moreBit = 0x80;

// A delta has four parts: numbers, names, amounts, rows. In the first three each change has the
// place of what it changes in front, from 1 on, and a 0 ends the part. A number that changes is
// there as the difference, so that it works both ways.

void putNumber(std::string& bytes, std::uint64_t number) {
    for (; number >= moreBit; number >>= wordBits) {
        bytes += static_cast<char>(number | moreBit);
    }
    bytes += static_cast<char>(number);
}

/// Small differences of either sign are few bytes.
void putDifference(std::string& bytes, std::uint32_t before, std::uint32_t after) {
    const std::uint32_t difference = after - before;
    putNumber(bytes, (difference << 1U) ^ (0U - (difference >> 31U)));
}

void putItem(std::string& bytes, char letter) {
    bytes += letter;
}

void putItem(std::string& bytes, std::size_t record) {
    putNumber(bytes, record);
}

/// What is out and what is in between two equal ends.
template <typename Sequence>
void putSplice(std::string& bytes, const Sequence& before, const Sequence& after) {
    const auto [goneFrom, comeFrom] =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto same = static_cast<std::size_t>(goneFrom - before.begin());
    std::size_t gone = before.size() - same, come = after.size() - same;
    while (gone > 0 && come > 0 && before[same + gone - 1] == after[same + come - 1]) {
        --gone;
        --come;
    }
    putNumber(bytes, same);
    const auto put = [&bytes](auto from, std::size_t count) {
        putNumber(bytes, count);
        std::for_each_n(from, count, [&bytes](auto item) { putItem(bytes, item); });
    };
    put(goneFrom, gone);
    put(comeFrom, come);
}

void putNumbers(std::string& bytes, const DesignMoment& before, const DesignMoment& after) {
    const auto put = [&](std::size_t place, std::uint32_t was, std::uint32_t is) {
        if (was != is) {
            putNumber(bytes, place + 1);
            putDifference(bytes, was, is);
        }
    };
    const ShipWords was = wordsOf(before.ship), is = wordsOf(after.ship);
    for (std::size_t word = 0; word < shipWordCount; ++word) {
        put(word, was[word], is[word]);
    }
    put(shipWordCount, before.ship.g_bAutoMass, after.ship.g_bAutoMass);
    put(shipWordCount + 1, before.isAutoMassMarked, after.isAutoMassMarked);
    putNumber(bytes, 0);
}

void putAmounts(std::string& bytes, const ShipState& before, const ShipState& after) {
    auto was = before.amounts.begin(), is = after.amounts.begin();
    while (was != before.amounts.end() || is != after.amounts.end()) {
        const bool isOld =
            is == after.amounts.end() || (was != before.amounts.end() && was->first <= is->first);
        const bool isNew =
            was == before.amounts.end() || (is != after.amounts.end() && is->first <= was->first);
        const std::size_t record = isOld ? was->first : is->first;
        const auto old = static_cast<std::uint32_t>(isOld ? was++->second : 0);
        const auto next = static_cast<std::uint32_t>(isNew ? is++->second : 0);
        if (old != next) {
            putNumber(bytes, record + 1);
            putDifference(bytes, old, next);
        }
    }
    putNumber(bytes, 0);
}

/// Reads a delta and takes a moment along. What is no delta for it is noticed at the latest at the
/// end.
class DeltaReader {
public:
    DeltaReader(std::string_view bytes, Way way, DesignMoment& moment)
        : m_bytes(bytes), m_isForth(way == Way::Forth), m_moment(moment) {}

    bool apply() {
        applyNumbers();
        applyNames();
        applyAmounts();
        if (m_isWell && !m_bytes.empty()) {
            applySplice(m_moment.rows);
        }
        return m_isWell && m_bytes.empty();
    }

private:
    std::uint64_t number() {
        std::uint64_t number = 0;
        for (unsigned shift = 0; shift < 63 && !m_bytes.empty(); shift += wordBits) {
            const auto byte = static_cast<unsigned char>(m_bytes.front());
            m_bytes.remove_prefix(1);
            number |= std::uint64_t{byte & (moreBit - 1)} << shift;
            if (byte < moreBit) {
                return number;
            }
        }
        m_isWell = false;
        return 0;
    }

    /// The place of the next change in this part, from 0 on; false behind the last one.
    bool nextPlace(std::size_t& place) {
        place = number();
        return m_isWell && place-- > 0;
    }

    std::uint32_t changed(std::uint32_t value) {
        const auto folded = static_cast<std::uint32_t>(number());
        const std::uint32_t difference = (folded >> 1U) ^ (0U - (folded & 1U));
        return m_isForth ? value + difference : value - difference;
    }

    void applyNumbers() {
        ShipWords words = wordsOf(m_moment.ship);
        for (std::size_t place = 0; nextPlace(place);) {
            if (place < shipWordCount) {
                words[place] = changed(words[place]);
            } else if (place <= shipWordCount + 1) {
                bool& flag =
                    place == shipWordCount ? m_moment.ship.g_bAutoMass : m_moment.isAutoMassMarked;
                flag = changed(flag) % 2 != 0;
            } else {
                m_isWell = false;
            }
        }
        setWords(m_moment.ship, words);
    }

    void applyNames() {
        for (std::size_t place = 0; nextPlace(place);) {
            applySplice(place == 0 ? m_moment.ship.g_sShipName : m_moment.ship.g_sDesignerName);
        }
    }

    void applyAmounts() {
        auto& amounts = m_moment.ship.amounts;
        for (std::size_t record = 0; nextPlace(record);) {
            const auto at = std::lower_bound(
                amounts.begin(), amounts.end(), record,
                [](const auto& each, std::size_t wanted) { return each.first < wanted; });
            const bool isThere = at != amounts.end() && at->first == record;
            const auto amount = static_cast<std::int32_t>(
                changed(static_cast<std::uint32_t>(isThere ? at->second : 0)));
            if (isThere && amount == 0) {
                amounts.erase(at);
            } else if (isThere) {
                at->second = amount;
            } else if (amount != 0) {
                amounts.insert(at, {record, amount});
            }
        }
    }

    template <typename Sequence>
    Sequence items() {
        Sequence items;
        for (std::uint64_t left = number(); left > 0 && m_isWell; --left) {
            if constexpr (std::is_same_v<Sequence, std::string>) {
                m_isWell = !m_bytes.empty();
                if (m_isWell) {
                    items += m_bytes.front();
                    m_bytes.remove_prefix(1);
                }
            } else {
                items.push_back(number());
            }
        }
        return items;
    }

    template <typename Sequence>
    void applySplice(Sequence& sequence) {
        const std::uint64_t same = number();
        Sequence gone = items<Sequence>(), come = items<Sequence>();
        if (!m_isForth) {
            std::swap(gone, come);
        }
        m_isWell = m_isWell && same <= sequence.size() && gone.size() <= sequence.size() - same;
        if (m_isWell) {
            const auto from = sequence.begin() + static_cast<std::ptrdiff_t>(same);
            const auto to = from + static_cast<std::ptrdiff_t>(gone.size());
            m_isWell = std::equal(from, to, gone.begin());
            const auto place = sequence.erase(from, to);
            sequence.insert(place, come.begin(), come.end());
        }
    }

    std::string_view m_bytes;
    bool m_isForth;
    DesignMoment& m_moment;
    bool m_isWell = true;
};

}  // namespace

bool isSameCatalogue(const std::shared_ptr<const CatalogueText>& one,
                     const std::shared_ptr<const CatalogueText>& other) {
    return one == other || (one && other && one->text() == other->text());
}

bool isSameFile(const ShipNames& one, const ShipNames& other) {
    return one.g_sSaveName == other.g_sSaveName &&
           one.g_sTrimmedFileName == other.g_sTrimmedFileName && one.origin == other.origin;
}

bool isSameDesign(const DesignMoment& one, const DesignMoment& other) {
    return wordsOf(one.ship) == wordsOf(other.ship) &&
           one.ship.g_bAutoMass == other.ship.g_bAutoMass &&
           one.isAutoMassMarked == other.isAutoMassMarked &&
           one.ship.g_sShipName == other.ship.g_sShipName &&
           one.ship.g_sDesignerName == other.ship.g_sDesignerName &&
           one.ship.amounts == other.ship.amounts && one.rows == other.rows;
}

std::string deltaBetween(const DesignMoment& before, const DesignMoment& after) {
    std::string bytes;
    putNumbers(bytes, before, after);
    const auto putName = [&](std::size_t place, const std::string& was, const std::string& is) {
        if (was != is) {
            putNumber(bytes, place);
            putSplice(bytes, was, is);
        }
    };
    putName(1, before.ship.g_sShipName, after.ship.g_sShipName);
    putName(2, before.ship.g_sDesignerName, after.ship.g_sDesignerName);
    putNumber(bytes, 0);
    putAmounts(bytes, before.ship, after.ship);
    if (before.rows != after.rows) {
        putSplice(bytes, before.rows, after.rows);
    }
    return bytes;
}

bool applyDelta(std::string_view delta, Way way, DesignMoment& moment) {
    return DeltaReader(delta, way, moment).apply();
}

}  // namespace fleetwright
