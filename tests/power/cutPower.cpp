#include "cutPower.h"

#include <algorithm>
#include <functional>

namespace fleetwright {

namespace {

/// What counts of the files, with those of the unit as one. Locks and the records of runs are
/// nobody's work.
Files counted(Files files, const std::string& unit) {
    std::string joined;
    std::erase_if(files, [&](const auto& file) {
        const auto& [path, contents] = file;
        const bool isOfUnit = !unit.empty() && path.starts_with(unit);
        if (isOfUnit) {
            joined += path + ' ' + std::to_string(std::hash<const void*>()(contents)) + '\n';
        }
        return isOfUnit || path == "reported/" || path.ends_with(".lock") ||
               path.find("/.record-") != std::string::npos;
    });
    if (!joined.empty()) {
        files[unit] = shared(std::move(joined));
    }
    return files;
}

/// What counts of the files at a report, and how many changes were made until then.
struct Report {
    std::size_t changes;
    Files files;
};

std::vector<Report> reportsOf(const Files& before, const std::vector<Change>& changes,
                              const std::string& unit) {
    Disk disk(before);
    std::vector<Report> reports = {{0, counted(before, unit)}};
    for (std::size_t i = 0; i < changes.size(); ++i) {
        disk.apply(changes[i]);
        if (changes[i].path == "reported" || i + 1 == changes.size()) {
            reports.push_back({i + 1, counted(disk.files(NamesKept::All, BytesKept::All), unit)});
        }
    }
    return reports;
}

bool has(const Files& files, const std::string& path, const std::string* contents) {
    const auto file = files.find(path);
    return file != files.end() && file->second == contents;
}

/// Whether these contents are found, under whatever name.
bool isFound(const std::string* contents, const Files& found) {
    return std::any_of(found.begin(), found.end(),
                       [&](const auto& file) { return file.second == contents; });
}

void addFaults(const Files& found, const std::vector<Report>& reports, std::size_t last,
               const std::string& shelf, std::set<std::string>& faults) {
    for (const auto& [path, contents] : found) {
        bool isOurs = false, isWhole = false;
        for (const Report& report : reports) {
            isOurs = isOurs || report.files.contains(path);
            isWhole = isWhole || isFound(contents, report.files);
        }
        if (isOurs && !isWhole) {
            faults.insert(path + " is torn");
        }
    }
    const Files& next = reports[std::min(last + 1, reports.size() - 1)].files;
    const bool isDone = std::all_of(next.begin(), next.end(),
                                    [&](const auto& file) { return isFound(file.second, found); });
    for (const auto& [path, contents] : reports[last].files) {
        const auto renewed = next.find(path);
        const bool isRenewed = renewed == next.end() ? isDone : has(found, path, renewed->second);
        const bool isOnShelf =
            !shelf.empty() && path.starts_with(shelf) && isFound(contents, found);
        if (!isRenewed && !isOnShelf && !has(found, path, contents)) {
            faults.insert(path + (found.contains(path) ? " is not what it was" : " is lost"));
        }
    }
}

std::size_t hashOf(const Files& files) {
    std::size_t hash = 0;
    for (const auto& [path, contents] : files) {
        hash += std::hash<std::string>()(path) * std::hash<const void*>()(contents);
    }
    return hash;
}

}  // namespace

Damage cutPower(const Files& before, const std::vector<Change>& changes, const Scope& scope) {
    const std::vector<Report> reports = reportsOf(before, changes, scope.unit);
    const std::size_t step = changes.size() / 100 + 1;  // of the samples
    std::map<std::pair<std::size_t, std::size_t>, std::set<std::string>> judged;
    Disk disk(before);
    Damage damage;
    for (std::size_t last = 0; damage.cuts <= changes.size(); ++damage.cuts) {
        if (damage.cuts > 0) {
            disk.apply(changes[damage.cuts - 1]);
        }
        while (last + 1 < reports.size() && reports[last + 1].changes <= damage.cuts) {
            ++last;
        }
        bool isGuilty = false;
        for (const auto names : {NamesKept::Synced, NamesKept::SyncedAndLast, NamesKept::All}) {
            for (const auto bytes : {BytesKept::Synced, BytesKept::Half, BytesKept::All}) {
                const Files files = disk.files(names, bytes);
                const auto [state, isNew] = judged.try_emplace({last, hashOf(files)});
                if (isNew) {
                    addFaults(counted(files, scope.unit), reports, last, scope.shelf,
                              state->second);
                    damage.faults.insert(state->second.begin(), state->second.end());
                }
                if (isNew && damage.states++ % step == 0) {
                    damage.samples.push_back(files);
                }
                isGuilty = isGuilty || !state->second.empty();
            }
        }
        damage.guilty += isGuilty ? 1U : 0U;
    }
    return damage;
}

}  // namespace fleetwright
