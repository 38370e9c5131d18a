#include "applicationFolder.h"

#include "Error.h"
#include "FileLock.h"
#include "StagedFiles.h"
#include "fileCalls.h"
#include "fingerprint.h"
#include "paths.h"
#include "readFile.h"
#include "saveFile.h"
#include "text.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// The entries below a folder by name, with paths from that folder on, without links. Throws
/// FileError.
std::vector<fs::path> entriesBelow(const fs::path& folder) {
    std::vector<fs::path> names, folders = {folder};
    while (!folders.empty()) {
        const fs::path next = std::move(folders.back());
        folders.pop_back();
        std::error_code error;
        for (const fs::directory_entry& entry : folderEntries(next, error)) {
            if (entry.is_symlink()) {
                continue;
            }
            names.push_back(entry.path().lexically_relative(folder));
            if (entry.is_directory()) {
                folders.push_back(entry.path());
            }
        }
        if (error) {
            throw FileError(next, error.message());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Changes whenever a delivered file does, without a look into any.
std::string stateOf(const fs::path& delivered, const std::vector<fs::path>& names) {
    std::string state;
    for (const fs::path& name : names) {
        const fs::directory_entry entry(delivered / name);
        state += name.generic_string() + '\n';
        if (entry.is_regular_file()) {
            const std::chrono::nanoseconds time = entry.last_write_time().time_since_epoch();
            state += std::to_string(entry.file_size()) + ' ' + std::to_string(time.count()) + '\n';
        }
    }
    return fingerprint(state);
}

/// The fingerprint of a file; empty if there is no such file.
std::string fingerprintOf(const fs::path& file) {
    return fs::is_regular_file(file) ? fingerprint(readBytes(file)) : std::string();
}

/// Which files were given, or are about to be. As a file: the state of the delivered files in the
/// first line, then for each file its fingerprint, a blank and its name.
class Record {
public:
    explicit Record(fs::path file) : m_file(std::move(file)) {
        if (!fs::exists(m_file)) {
            return;
        }
        const std::string text = readBytes(m_file);
        LineReader reader(text);
        std::string_view line;
        if (reader.next(line)) {
            m_state = line;
        }
        while (reader.next(line)) {
            const std::size_t blank = line.find(' ');
            if (blank != std::string_view::npos) {
                m_given.emplace(line.substr(blank + 1), line.substr(0, blank));
            }
        }
    }

    void save(const std::string& state) const {
        std::string text = state + '\n';
        for (const auto& [name, contents] : m_given) {
            text.append(contents).append(" ").append(name).append("\n");
        }
        if (fs::is_symlink(m_file)) {
            [[maybe_unused]] const auto stays = removeFile(m_file);  // never what it leads to
        }
        saveFile(m_file, text);
    }

    bool hasState(const std::string& state) const { return m_state == state; }
    /// Fingerprints by names.
    const std::map<std::string, std::string>& given() const { return m_given; }
    void note(const std::string& name, const std::string& contents) { m_given[name] = contents; }
    void forget() { m_given.clear(); }

private:
    fs::path m_file;
    std::string m_state;
    std::map<std::string, std::string> m_given;
};

bool isProtected(const fs::path& file) {
    return (fs::status(file).permissions() & fs::perms::owner_write) == fs::perms::none;
}

/// Whether the user gets this file: it is new to this folder, or is still as it was given.
bool isToBeGiven(const fs::path& file, const std::string& found, const std::string& given) {
    const bool isThere = fs::exists(fs::symlink_status(file));
    return given.empty() ? !isThere : !found.empty() && found == given && !isProtected(file);
}

/// Gives the user these files and notes them: files that are there keep what else belongs to them,
/// and new ones come together, since a first start has many.
void give(const fs::path& delivered, const fs::path& userFolder, const Record& gifts,
          Record& record) {
    const fs::path staging = userFolder / ".arriving";
    [[maybe_unused]] const auto none = removeTree(staging);  // what a killed run has left
    StagedFiles newOnes(staging);
    for (const auto& [name, contents] : gifts.given()) {
        const fs::path target = userFolder / nativePath(name);
        const std::string bytes = readBytes(delivered / nativePath(name));
        if (fs::exists(fs::symlink_status(target))) {
            saveFile(target, bytes);
        } else {
            newOnes.add(target, bytes);
        }
        record.note(name, fingerprint(bytes));
    }
    newOnes.place();
}

/// Gives the user what is new, and notes what the user has been given.
void refreshFiles(const fs::path& delivered, const fs::path& userFolder,
                  const std::vector<fs::path>& names, Record& record) {
    const fs::path onTheWay = userFolder / ".delivering";
    Record gifts(onTheWay);
    for (const auto& [name, contents] : gifts.given()) {
        if (fingerprintOf(userFolder / nativePath(name)) == contents) {
            record.note(name, contents);
        }
    }
    gifts.forget();
    for (const fs::path& path : names) {
        if (fs::is_directory(delivered / path)) {
            makeFolder(userFolder / path);
            continue;
        }
        const std::string name = path.generic_string(), wanted = fingerprintOf(delivered / path),
                          found = fingerprintOf(userFolder / path);
        const auto given = record.given().find(name);
        if (found == wanted) {
            record.note(name, wanted);
        } else if (isToBeGiven(userFolder / path, found,
                               given == record.given().end() ? "" : given->second)) {
            gifts.note(name, wanted);
        }
    }
    gifts.save("");
    give(delivered, userFolder, gifts, record);
}

/// Earlier versions have made links to the parts of the program, which were then loaded by them.
void takeLinksAway(const fs::path& userFolder) {
    for (const char* const name : {"w_dll.dll", "sounds.dll", "pictures.dll", "images.exe"}) {
        const fs::path link = userFolder / name;
        if (fs::is_symlink(link)) {
            [[maybe_unused]] const auto stays = removeFile(link);
        }
    }
}

void refreshEntries(const fs::path& delivered, const fs::path& userFolder) {
    makeUserFolder(userFolder);
    takeLinksAway(userFolder);
    const std::vector<fs::path> names = entriesBelow(delivered);
    const std::string state = stateOf(delivered, names);
    const fs::path file = userFolder / ".delivered";
    if (Record(file).hasState(state)) {
        return;
    }
    const FileLock lock(userFolder / ".", FileLock::IfTaken::Wait);
    Record record(file);
    if (record.hasState(state)) {
        return;  // another start has been at the same work
    }
    refreshFiles(delivered, userFolder, names, record);
    record.save(state);
    [[maybe_unused]] const auto stays = removeFile(userFolder / ".delivering");
}

}  // namespace

fs::path applicationFolder(const fs::path& executableFolder) {
    const fs::path delivered = executableFolder / "delivered";
    if (!fs::is_directory(delivered)) {
        return executableFolder;
    }
    fs::path folder = userDataFolder();
    refreshUserFolder(delivered, folder);
    return folder;
}

void refreshUserFolder(const fs::path& delivered, const fs::path& userFolder) {
    try {
        refreshEntries(delivered, userFolder);
    } catch (const fs::filesystem_error& error) {
        throw FileError(error.path1(), error.code().message());
    }
}

}  // namespace fleetwright
