#pragma once

#include "Choices.h"
#include "TemporaryFolder.h"
#include "readFile.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <string>

namespace fleetwright {

namespace fs = std::filesystem;

/// What stands in a folder, by path: "folder", "pipe", "link to TARGET", "file CONTENTS", or
/// "protected CONTENTS" where nobody may write to it.
using Files = std::map<std::string, std::string>;

/// All of it as a text.
inline std::string listing(const Files& files) {
    std::string text;
    for (const auto& [path, what] : files) {
        text.append(path).append(": ").append(what).append("\n");
    }
    return text;
}

/// Files in a folder of their own, and what else happens to files than what the program does.
class FileTree : public TemporaryFolder {
public:
    Files files() const {
        Files files;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path())) {
            std::string& what = files[entry.path().lexically_relative(path()).string()];
            if (entry.is_symlink()) {
                what = "link to " + fs::read_symlink(entry).string();
            } else if (!entry.is_regular_file()) {
                what = entry.is_directory() ? "folder" : "pipe";
            } else {
                const fs::perms writable = entry.status().permissions() & fs::perms::owner_write;
                what = (writable == fs::perms::none ? "protected " : "file ") + readBytes(entry);
            }
        }
        return files;
    }

    /// Somebody removes, protects or cuts short what has this name, or puts a link or something
    /// new in its place: "AUTHOR N", with a time of its own.
    void meddle(Choices& choices, const std::string& name, const std::string& author) {
        const fs::path file = path() / name;
        std::error_code ignored;
        switch (choices.below(5)) {
        case 0:
            fs::permissions(file, fs::perms::owner_read, ignored);
            return;
        case 1:
            fs::resize_file(file, static_cast<std::uintmax_t>(choices.below(0x100)), ignored);
            return;
        case 2:
            fs::remove_all(file, ignored);
            return;
        case 3:
            fs::remove_all(file, ignored);
            fs::create_symlink(choices.oneIn(2) ? "gone" : path() / "precious", file, ignored);
            return;
        default:
            fs::create_directories(file.parent_path(), ignored);
            if (fs::is_directory(file.parent_path(), ignored) &&
                (fs::is_regular_file(file, ignored) ||
                 !fs::exists(fs::symlink_status(file, ignored)))) {
                write(name, author + ' ' + std::to_string(++m_written));
                fs::last_write_time(file, fs::file_time_type(std::chrono::seconds(m_written)),
                                    ignored);
            }
        }
    }

private:
    int m_written = 0;
};

}  // namespace fleetwright
