#include "RecoveryRecord.h"

#include "fingerprint.h"
#include "text.h"

#include <algorithm>

namespace fleetwright {

namespace {

// A record as a text: the fingerprint of all that follows, then a line for each thing known.
constexpr std::string_view madeLine = "made";  // RUN FINGERPRINT NAME
constexpr std::string_view seenLine = "seen";  // NAME
constexpr std::string_view cutLine = "cut";    // FINGERPRINT

std::string_view takeWord(std::string_view& line) {
    const std::string_view word = line.substr(0, line.find(' '));
    line.remove_prefix(std::min(line.size(), word.size() + 1));
    return word;
}

}  // namespace

RecoveryRecord RecoveryRecord::of(std::string_view text) {
    RecoveryRecord record;
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos || text.substr(0, end) != fingerprint(text.substr(end + 1))) {
        return record;
    }
    LineReader reader(text.substr(end + 1));
    for (std::string_view line; reader.next(line);) {
        const std::string_view kind = takeWord(line);
        if (kind == madeLine) {
            const std::string run(takeWord(line)), contents(takeWord(line));
            record.m_designs[std::string(line)].made.emplace(run, contents);
        } else if (kind == seenLine) {
            record.noteSeen(std::string(line));
        } else if (kind == cutLine) {
            record.m_cuts.emplace(line);
        }
    }
    return record;
}

std::string RecoveryRecord::text() const {
    std::string text;
    const auto add = [&text](auto... words) { ((text.append(words) += ' '), ...).back() = '\n'; };
    for (const auto& [name, design] : m_designs) {
        for (const auto& [run, contents] : design.made) {
            add(madeLine, run, contents, name);
        }
        if (design.isSeen) {
            add(seenLine, name);
        }
    }
    for (const std::string& contents : m_cuts) {
        add(cutLine, contents);
    }
    return fingerprint(text) + '\n' + text;
}

void RecoveryRecord::noteMade(const std::string& name, const std::string& run,
                              std::string_view shipFile) {
    m_designs[name].made.emplace(run, fingerprint(shipFile));
    m_cuts.clear();
    for (std::size_t end = shipFile.find('\n');
         end != std::string_view::npos && end + 1 < shipFile.size();
         end = shipFile.find('\n', end + 1)) {
        m_cuts.insert(fingerprint(shipFile.substr(0, end + 1)));
    }
}

void RecoveryRecord::noteSeen(const std::string& name) {
    m_designs[name].isSeen = true;
}

void RecoveryRecord::keepOnly(const std::set<std::string>& names) {
    std::erase_if(m_designs, [&names](const auto& each) { return !names.contains(each.first); });
}

void RecoveryRecord::add(const RecoveryRecord& other) {
    for (const auto& [name, design] : other.m_designs) {
        Design& mine = m_designs[name];
        mine.made.insert(design.made.begin(), design.made.end());
        mine.isSeen = mine.isSeen || design.isSeen;
    }
    m_cuts.insert(other.m_cuts.begin(), other.m_cuts.end());
}

bool RecoveryRecord::isMade(const std::string& name) const {
    return !makersOf(name).empty();
}

bool RecoveryRecord::isMade(const std::string& name, std::string_view shipFile) const {
    return namesOf(shipFile).contains(name);
}

bool RecoveryRecord::isSeen(const std::string& name) const {
    const auto found = m_designs.find(name);
    return found != m_designs.end() && found->second.isSeen;
}

std::set<std::string> RecoveryRecord::makersOf(const std::string& name) const {
    std::set<std::string> runs;
    if (const auto found = m_designs.find(name); found != m_designs.end()) {
        for (const auto& [run, contents] : found->second.made) {
            runs.insert(run);
        }
    }
    return runs;
}

std::set<std::string> RecoveryRecord::namesOf(std::string_view shipFile) const {
    const std::string wanted = fingerprint(shipFile);
    std::set<std::string> names;
    for (const auto& [name, design] : m_designs) {
        if (std::any_of(design.made.begin(), design.made.end(),
                        [&wanted](const auto& each) { return each.second == wanted; })) {
            names.insert(name);
        }
    }
    return names;
}

bool RecoveryRecord::isCut(std::string_view shipFile) const {
    return m_cuts.contains(fingerprint(shipFile));
}

}  // namespace fleetwright
