#include "folders.h"

#include "Error.h"
#include "capitals.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// The entry `name` of a folder, or one whose name differs only in case; empty if there is none.
fs::path findEntry(const fs::path& folder, const fs::path& name) {
    fs::path exact = folder / name;
    std::error_code error;
    if (fs::exists(exact, error)) {
        return exact;
    }
    const std::string wanted = toCapitals(pathText(name));
    fs::path found;
    for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const fs::path other = entry->path().filename();
        if (toCapitals(pathText(other)) == wanted && (found.empty() || other < found)) {
            found = other;
        }
    }
    return found.empty() ? found : folder / found;
}

}  // namespace

std::string pathText(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::vector<fs::path> listFolder(const fs::path& folder, std::string_view ending) {
    const std::string wanted = toCapitals(ending);
    std::vector<std::pair<std::string, fs::path>> files;  // by name in capitals
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        std::string name = toCapitals(pathText(entry->path().filename()));
        std::error_code unknown;
        // A link to nothing counts, so that whoever opens it says so; a pipe would be waited for.
        const bool isFile = entry->is_regular_file(unknown) ||
                            (entry->is_symlink(unknown) && !entry->exists(unknown));
        if (name.ends_with(wanted) && isFile) {
            files.emplace_back(std::move(name), entry->path());
        }
    }
    if (error && error != std::errc::no_such_file_or_directory) {
        throw FileError(folder, "cannot be read: " + error.message());
    }
    std::sort(files.begin(), files.end());
    std::vector<fs::path> paths;
    paths.reserve(files.size());
    for (auto& [name, path] : files) {
        paths.push_back(std::move(path));
    }
    return paths;
}

void makeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        throw FileError(folder, "cannot be made: " + error.message());
    }
}

fs::path findFile(const fs::path& file) {
    std::error_code error;
    if (fs::exists(file, error)) {
        return file;
    }
    fs::path found = file.root_path();
    for (const fs::path& part : file.relative_path()) {
        found = findEntry(found, part);
        if (found.empty()) {
            return file;
        }
    }
    return found;
}

}  // namespace fleetwright
