#include "applicationFolder.h"

#include "Error.h"
#include "paths.h"
#include "readFile.h"
#include "saveFile.h"
#include "text.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Tells contents apart: their length and their 64-bit FNV-1a hash.
std::string fingerprint(std::string_view bytes) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : bytes) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    }
    return std::to_string(bytes.size()) + '-' + std::to_string(hash);
}

/// The entries below a folder by name, with paths from that folder on.
std::vector<fs::path> entriesBelow(const fs::path& folder) {
    std::vector<fs::path> names;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        names.push_back(entry.path().lexically_relative(folder));
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
            const auto time = entry.last_write_time().time_since_epoch().count();
            state += std::to_string(entry.file_size()) + ' ' + std::to_string(time) + '\n';
        }
    }
    return fingerprint(state);
}

/// What the user's folder was given. As a file: the state of the delivered files in the first line,
/// then for each file its fingerprint, a blank and its name.
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

    bool hasState(const std::string& state) const { return m_state == state; }

    /// The fingerprint of what was given last under this name; empty if nothing was.
    std::string given(const fs::path& name) const {
        const auto found = m_given.find(name.generic_string());
        return found == m_given.end() ? std::string() : found->second;
    }

    void note(const fs::path& name, const std::string& contents) {
        m_given[name.generic_string()] = contents;
    }

    void save(const std::string& state) const {
        std::string text = state + '\n';
        for (const auto& [name, contents] : m_given) {
            text.append(contents).append(" ").append(name).append("\n");
        }
        saveFile(m_file, text);
    }

private:
    fs::path m_file;
    std::string m_state;
    std::map<std::string, std::string> m_given;
};

bool isProtected(const fs::path& file) {
    return (fs::status(file).permissions() & fs::perms::owner_write) == fs::perms::none;
}

void refreshFile(const fs::path& source, const fs::path& target, const fs::path& name,
                 Record& record) {
    const std::string contents = readBytes(source);
    const std::string wanted = fingerprint(contents);
    const std::string given = record.given(name);
    const bool isMissing = fs::symlink_status(target).type() == fs::file_type::not_found;
    const std::string found = fs::is_regular_file(target) ? fingerprint(readBytes(target)) : "";

    const bool isNew = isMissing && given.empty();
    const bool isAsGiven = !found.empty() && found == given && !isProtected(target);
    if (found != wanted && (isNew || isAsGiven)) {
        saveFile(target, contents);
    }
    // A run that was cut short has put files in place and not noted them.
    if (found == wanted || isNew || isAsGiven) {
        record.note(name, wanted);
    }
}

void refreshLink(const fs::path& source, const fs::path& target) {
    if (fs::exists(target)) {
        return;
    }
    fs::create_directories(target.parent_path());
    std::error_code error;
    if (fs::is_symlink(target)) {
        fs::remove(target, error);  // it leads to what is no longer there
    }
    fs::create_symlink(fs::canonical(source), target, error);
    // Another start of the program may be at the same work.
    if (error && error != std::errc::file_exists) {
        throw FileError(target, "cannot be made: " + error.message());
    }
}

void refreshEntries(const fs::path& delivered, const fs::path& userFolder) {
    const std::vector<fs::path> names = entriesBelow(delivered);
    for (const fs::path& name : names) {
        if (fs::is_symlink(delivered / name)) {
            refreshLink(delivered / name, userFolder / name);
        }
    }
    const std::string state = stateOf(delivered, names);
    Record record(userFolder / ".delivered");
    if (record.hasState(state)) {
        return;
    }
    fs::create_directories(userFolder);
    for (const fs::path& name : names) {
        const fs::path source = delivered / name;
        if (fs::is_directory(source)) {
            fs::create_directories(userFolder / name);
        } else if (!fs::is_symlink(source)) {
            refreshFile(source, userFolder / name, name, record);
        }
    }
    record.save(state);
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
