#include "RecoverySteps.h"

#include "Error.h"
#include "RecoveryListing.h"
#include "fileCalls.h"
#include "fingerprint.h"
#include "paths.h"
#include "readFile.h"
#include "saveFile.h"

#include <algorithm>
#include <system_error>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// The ship or fleet beside a file of steps that has this mark; nothing if there is none.
std::optional<fs::path> designBeside(const fs::path& steps, const std::string& mark) {
    for (const char* const extension : {recoveryExtension, recoveryFleet}) {
        fs::path design =
            steps.parent_path() / nativePath(steps.stem().string() + extension + mark);
        if (isInFolder(design)) {
            return design;
        }
    }
    return std::nullopt;
}

std::string stepsIn(const fs::path& file) {
    try {
        return readBytes(file);
    } catch (const FileError&) {
        return {};
    }
}

}  // namespace

fs::path stepsBeside(const fs::path& design) {
    const std::string extension = design.extension().string();
    const std::size_t mark = std::min(extension.find(beforeRecoveryMark), extension.size());
    return design.parent_path() /
           nativePath(design.stem().string() + recoverySteps + extension.substr(mark));
}

std::string stepsOfDesign(const fs::path& design) {
    return stepsIn(stepsBeside(design));
}

bool areStepsWhole(std::string_view steps) {
    const std::string_view head = steps.substr(0, steps.find('\n'));
    return head.size() < steps.size() && head.ends_with(fingerprint(steps.substr(head.size() + 1)));
}

std::string sealedSteps(std::string_view title, const std::string& lines) {
    return std::string(title) + ' ' + fingerprint(lines) + '\n' + lines;
}

std::optional<std::string_view> linesOfSteps(std::string_view title, std::string_view steps) {
    const std::string_view head = steps.substr(0, steps.find('\n'));
    const std::string_view lines = steps.substr(std::min(steps.size(), head.size() + 1));
    const bool isWhole = head == std::string(title) + ' ' + fingerprint(lines);
    return isWhole ? std::optional(lines) : std::nullopt;
}

bool writeSteps(const fs::path& design, const std::string& steps) {
    const fs::path file = stepsBeside(design);
    if (steps.empty() || (isInFolder(file) && !areStepsWhole(stepsIn(file)))) {
        return false;
    }
    try {
        saveFile(file, steps);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

void removeSteps(const fs::path& design) {
    if (areStepsWhole(stepsOfDesign(design))) {
        [[maybe_unused]] const std::error_code left = removeFile(stepsBeside(design));
    }
}

void joinSteps(const RecoveryListing& listing, const std::set<std::string>& running) {
    for (const fs::path& file : listing.steps) {
        const std::string ending = file.extension().string();
        const std::string mark =
            ending.substr(std::min(ending.size(), std::string_view(recoverySteps).size()));
        if (designBeside(file, mark) || (!mark.empty() && running.contains(mark.substr(1)))) {
            continue;
        }
        const std::optional<fs::path> plain = designBeside(file, "");
        if ((!plain || renameToNew(file, stepsBeside(*plain))) && areStepsWhole(stepsIn(file))) {
            [[maybe_unused]] const std::error_code left = removeFile(file);
        }
    }
}

}  // namespace fleetwright
