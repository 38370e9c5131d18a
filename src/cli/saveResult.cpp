#include "saveResult.h"

#include "console.h"

#include <string>

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

}  // namespace fleetwright
