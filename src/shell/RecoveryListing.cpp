#include "RecoveryListing.h"

#include "Error.h"
#include "TemporaryFile.h"
#include "fileCalls.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Whether a run can have such a mark.
bool isMark(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

bool isInFolder(const fs::path& file) {
    std::error_code unknown;
    return fs::exists(fs::symlink_status(file, unknown));
}

std::optional<RecoveryDesign> RecoveryDesign::in(const fs::path& file) {
    const std::string name = file.filename().string();
    const std::size_t dot = name.rfind('.');
    const std::string_view ending =
        dot == std::string::npos ? "" : std::string_view(name).substr(dot);
    const bool isFleet = ending.starts_with(recoveryFleet);
    const std::string_view extension = isFleet ? recoveryFleet : recoveryExtension;
    const bool hasMark = ending.size() > extension.size() + 1 && ending.starts_with(extension) &&
                         ending[extension.size()] == beforeRecoveryMark;
    if (dot == 0 || (ending != extension && !hasMark)) {
        return std::nullopt;
    }
    const std::string stem = name.substr(0, dot), known = isFleet ? stem + recoveryFleet : stem;
    return RecoveryDesign{
        .file = file,
        .recordName = known,
        .mark = std::string(hasMark ? ending.substr(extension.size() + 1) : std::string_view()),
        .name = known,
        .about = RecoveryName::of(stem, isFleet ? RecoveryKind::Fleet : RecoveryKind::Ship)};
}

bool isAnyLeftBehind(const std::vector<RecoveryDesign>& designs) {
    return std::any_of(designs.begin(), designs.end(),
                       [](const RecoveryDesign& design) { return design.isLeftBehind; });
}

void sortNewestFirst(std::vector<RecoveryDesign>& designs) {
    std::sort(designs.begin(), designs.end(), [](const auto& a, const auto& b) {
        return a.about.isNewerThan(b.about) || (!b.about.isNewerThan(a.about) && a.file < b.file);
    });
    // Two runs may have had the same ship in the same second: then the whole names tell them apart.
    for (std::size_t i = 1; i < designs.size(); ++i) {
        if (designs[i - 1].recordName == designs[i].recordName) {
            designs[i - 1].name = designs[i - 1].file.filename().string();
            designs[i].name = designs[i].file.filename().string();
        }
    }
}

RecoveryListing::RecoveryListing(const fs::path& folder) {
    std::error_code error;
    for (const fs::directory_entry& entry : folderEntries(folder, error)) {
        std::error_code unknown;
        if (entry.is_regular_file(unknown)) {
            take(entry.path());
        }
    }
    std::sort(leftOvers.begin(), leftOvers.end());  // they get numbers in this order
    if (error && error != std::errc::no_such_file_or_directory) {
        throw FileError(folder, "cannot be read: " + error.message());
    }
}

void RecoveryListing::take(const fs::path& file) {
    const std::string ending = file.extension().string();
    if (std::optional<RecoveryDesign> design = RecoveryDesign::in(file)) {
        highest = std::max(highest, design->about.number);
        designs.push_back(*std::move(design));
    } else if (ending == recoverySteps ||
               ending.starts_with(std::string(recoverySteps) + beforeRecoveryMark)) {
        steps.push_back(file);
    } else if (ending == recoveryLock && isMark(file.stem().string())) {
        locks.push_back(file);
    } else if (TemporaryFile::isOne(file)) {
        leftOvers.push_back(file);
    } else if (file.filename().string().starts_with(recoveryRecord)) {
        records.push_back(file);
    }
}

std::set<std::string> RecoveryListing::recordNames() const {
    std::set<std::string> names;
    for (const RecoveryDesign& design : designs) {
        names.insert(design.recordName);
    }
    return names;
}

}  // namespace fleetwright
