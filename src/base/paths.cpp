#include "paths.h"

#include "Error.h"
#include "fileCalls.h"
#include "text.h"
#include "userPlaces.h"

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
    for (const fs::directory_entry& entry : folderEntries(folder, error)) {
        // Capitals take as many bytes as small letters, so that most entries need no closer look.
        if (entry.path().native().size() != exact.native().size()) {
            continue;
        }
        const fs::path other = entry.path().filename();
        if (toCapitals(pathText(other)) == wanted && (found.empty() || other < found)) {
            found = other;
        }
    }
    return found.empty() ? found : folder / found;
}

using MakeOne = std::error_code (*)(const fs::path& folder);

/// Makes a folder and those that it stands in, so that they outlast a power cut.
std::error_code makeIfMissing(const fs::path& folder, MakeOne makeOne) {
    std::error_code unknown;
    const fs::file_status status = fs::status(folder, unknown);
    if (folder.empty() || fs::is_directory(status)) {
        return {};
    }
    if (fs::exists(status)) {
        return std::make_error_code(std::errc::not_a_directory);
    }
    std::error_code error = makeIfMissing(folder.parent_path(), makeOne);
    if (error || !folder.has_filename()) {
        return error;
    }
    error = makeOne(folder);
    // Another run may have been quicker.
    return error && !fs::is_directory(folder, unknown) ? error : syncFolder(folder.parent_path());
}

/// Whether a name, its folders parted by "/", leads elsewhere whatever there is on the disk.
bool leadsOut(std::string_view name, const fs::path& path) {
    constexpr char parent[] = "..";
    const bool hasDrive = name.size() > 1 && name[1] == ':';
    return hasDrive || name.starts_with('/') ||
           std::find(path.begin(), path.end(), parent) != path.end();
}

/// Whether a link among the last parts of a path, so many of them, leads out of the folder that
/// they stand in.
bool isLinkedOut(const fs::path& file, std::ptrdiff_t parts) {
    bool hasLink = false;
    fs::path folder = file;
    std::error_code unknown;
    for (; parts > 0; --parts) {
        hasLink = hasLink || fs::is_symlink(folder, unknown);
        folder = folder.parent_path();
    }
    if (!hasLink) {
        return false;
    }
    const fs::path end = fs::canonical(file, unknown);
    const fs::path inside = fs::canonical(folder.empty() ? "." : folder, unknown);
    const auto [left, other] = std::mismatch(inside.begin(), inside.end(), end.begin(), end.end());
    return !end.empty() && left != inside.end();
}

}  // namespace

std::string pathText(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

fs::path nativePath(std::string_view utf8) {
    return fs::path(std::u8string(utf8.begin(), utf8.end())).make_preferred();
}

std::vector<fs::path> listFolder(const fs::path& folder, std::string_view ending) {
    const std::string wanted = toCapitals(ending);
    std::vector<std::pair<std::string, fs::path>> files;  // by name in capitals
    std::error_code error;
    for (const fs::directory_entry& entry : folderEntries(folder, error)) {
        std::string name = toCapitals(pathText(entry.path().filename()));
        std::error_code unknown;
        // A link to nothing and a pipe count, so that whoever opens them says so.
        if (name.ends_with(wanted) && !entry.is_directory(unknown)) {
            files.emplace_back(std::move(name), entry.path());
        }
    }
    std::error_code unknown;
    if (error && (error != std::errc::no_such_file_or_directory ||
                  fs::is_symlink(folder, unknown))) {  // a link to nothing is no missing folder
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

std::vector<fs::path> filesBelow(const fs::path& folder) {
    std::vector<fs::path> files;
    std::vector<fs::path> folders = {folder};
    while (!folders.empty()) {
        const fs::path next = std::move(folders.back());
        folders.pop_back();
        std::error_code unknown;
        for (const fs::directory_entry& entry : folderEntries(next, unknown)) {
            if (entry.is_directory(unknown) && !entry.is_symlink(unknown)) {
                folders.push_back(entry.path());
            } else if (entry.is_regular_file(unknown)) {
                files.push_back(entry.path());
            }
        }
    }
    return files;
}

void makeFolder(const fs::path& folder) {
    if (const std::error_code error = makeIfMissing(folder, makeNewFolder)) {
        throw FileError(folder, "cannot be made: " + error.message());
    }
}

void makeUserFolder(const fs::path& folder) {
    if (const std::error_code error = makeIfMissing(folder, makeNewPrivateFolder)) {
        throw FileError(folder, "cannot be made: " + error.message());
    }
    std::error_code unknown;
    const fs::file_status status = fs::symlink_status(folder, unknown);
    const fs::perms usersOwn = status.permissions() & fs::perms::owner_all;
    if (fs::is_directory(status) && status.permissions() != usersOwn) {
        [[maybe_unused]] const auto notOurs = setFolderMode(folder, usersOwn);
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

fs::path fileBelow(const fs::path& folder, std::string_view name) {
    std::string text(name);
    std::replace(text.begin(), text.end(), '\\', '/');
    const fs::path below = nativePath(text);
    const auto parts = std::distance(below.begin(), below.end());
    if (!leadsOut(text, below)) {
        fs::path file = folder / below;
        // Most names are those of plain files in the folder itself, for which one look is enough.
        std::error_code unknown;
        if (parts == 1 && fs::is_regular_file(fs::symlink_status(file, unknown))) {
            return file;
        }
        file = findFile(file);
        if (!isLinkedOut(file, parts)) {
            return file;
        }
    }
    throw FileError(nativePath(pathText(folder) + '/' + text),
                    "leads out of the folder " + quote(pathText(folder.filename())));
}

fs::path userDataFolder() {
    return userPlaces::data() / "FleetWright";
}

fs::path userCacheFolder() {
    return userPlaces::cache() / "FleetWright";
}

std::string fileNameOf(const std::string& name) {
    constexpr std::size_t mostCharacters = 60;
    constexpr std::size_t mostBytes = 160;  // file systems take 255, and all the rest follows
    constexpr std::string_view forbidden = "/\\:*?\"<>|~";
    std::string file;
    for (const char c : name) {
        const bool isControl = static_cast<unsigned char>(c) < ' ';
        file += isControl || forbidden.find(c) != std::string_view::npos ? '_' : c;
    }
    if (const std::size_t length = characterCount(file); length > mostCharacters) {
        file = withoutLastCharacters(file, length - mostCharacters);
    }
    while (file.size() > mostBytes) {
        file = withoutLastCharacters(file, 1);
    }
    const std::size_t first = file.find_first_not_of(" .");
    return first == std::string::npos ? "Unnamed" : file.substr(first);
}

fs::path putAsideFolder() {
    return userDataFolder() / "recovered";
}

fs::path executableFolder(const std::string& word) {
    fs::path executable = userPlaces::executable();
    if (executable.empty()) {
        executable = nativePath(word);
        // A bare name was found somewhere else than here.
        if (!executable.has_parent_path()) {
            throw FileError(executable, "the folder of the program cannot be found");
        }
        std::error_code unknown;
        executable = fs::absolute(executable, unknown);
    }
    return executable.parent_path();
}

}  // namespace fleetwright
