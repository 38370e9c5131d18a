#include "checkPicturesAtStart.h"

#include "CatalogueFile.h"
#include "Error.h"
#include "FileStamp.h"
#include "PictureCheck.h"
#include "fingerprint.h"
#include "paths.h"
#include "readFile.h"
#include "saveFile.h"

#include <optional>
#include <string>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Changes whenever one of the pictures does, or the program, which may find other faults then.
/// Nothing if one is missing, or so new that it could change without a trace.
std::optional<std::string> stateOf(const CatalogueText& catalogue, const fs::path& folder) {
    std::string state = FLEETWRIGHT_VERSION;
    try {
        for (const CatalogueLine& line : catalogue.lines()) {
            const fs::path file = fileBelow(folder, line.icon);
            const std::optional<FileStamp> stamp = fileStamp(file);
            if (!stamp || stamp->isFresh) {
                return std::nullopt;
            }
            state += '\n' + pathText(file);
            for (const std::uint64_t number : {stamp->device, stamp->number, stamp->size,
                                               static_cast<std::uint64_t>(stamp->modified),
                                               static_cast<std::uint64_t>(stamp->changed)}) {
                state += ' ' + std::to_string(number);
            }
        }
    } catch (const FileError&) {
        return std::nullopt;
    }
    return fingerprint(state);
}

bool isNoted(const fs::path& memory, const std::string& state) {
    try {
        return readBytes(memory) == state;
    } catch (const FileError&) {
        return false;
    }
}

void note(const fs::path& memory, const std::string& state) {
    try {
        makeUserFolder(memory.parent_path());
        saveFile(memory, state);
    } catch (const FileError&) {
        // The next start looks at all pictures again.
    }
}

}  // namespace

std::vector<Fault> checkPicturesAtStart(const CatalogueText& catalogue, const fs::path& folder,
                                        PictureFiles& pictures, const fs::path& memory) {
    const std::optional<std::string> state = stateOf(catalogue, folder);
    if (state && isNoted(memory, *state)) {
        return {};
    }
    std::vector<Fault> faults =
        PictureCheck(folder, pictures, PictureCheck::Start).checkCatalogue(catalogue);
    if (state && faults.empty()) {
        note(memory, *state);
    }
    return faults;
}

}  // namespace fleetwright
