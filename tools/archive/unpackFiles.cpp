#include "unpackFiles.h"

#include "Error.h"
#include "StagedFiles.h"
#include "fileCalls.h"

#include <system_error>

namespace fleetwright {

void unpackFiles(std::span<const ArchivedFile> files, const std::filesystem::path& folder) {
    const std::filesystem::path staging = folder / ".unpacking";
    // What a run that was killed has left.
    if (const std::error_code error = removeTree(staging)) {
        throw FileError(folder, "cannot be written: " + error.message());
    }
    StagedFiles unpacked(staging);
    for (const ArchivedFile& file : files) {
        unpacked.add(folder / file.name, file.bytes);
    }
    unpacked.place();
}

}  // namespace fleetwright
