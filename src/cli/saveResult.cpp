#include "saveResult.h"

#include "Error.h"
#include "console.h"
#include "paths.h"

#include <string>
#include <system_error>

namespace fleetwright {

void announceSave(const std::filesystem::path& file) {
    if (const std::string notice = otherNamesNotice(file); !notice.empty()) {
        complain(notice);
    }
}

void saveResult(const std::filesystem::path& file, std::string_view bytes) {
    announceSave(file);
    saveFile(file, bytes);
}

void saveResult(const std::filesystem::path& file, const FileContents& contents) {
    announceSave(file);
    saveFile(file, contents);
}

void saveResultOf(std::span<const std::string> inputs, const std::filesystem::path& file,
                  std::string_view bytes) {
    for (const std::string& input : inputs) {
        std::error_code isNone;
        if (std::filesystem::equivalent(nativePath(input), file, isNone)) {
            throw FileError(file, "cannot be saved: it is what this is made from");
        }
    }
    saveResult(file, bytes);
}

}  // namespace fleetwright
