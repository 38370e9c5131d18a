// Passes all that is done in a folder on to the files that the mount hides, and notes the changes.

#define FUSE_USE_VERSION 31

#include "recorders.h"
#include "runCommand.h"

#include <fuse.h>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <thread>

namespace fleetwright {

namespace {

using Kind = Change::Kind;

int hidden = -1;  // the folder below the mount
std::vector<Change> noted;

/// A path of the mount as one of that folder.
const char* below(const char* path) {
    return path[1] == '\0' ? "." : path + 1;
}

int handle(const fuse_file_info* file) {
    return static_cast<int>(file->fh);
}

/// What a call of the system has returned, as this library wants it.
int answer(ssize_t returned) {
    return returned < 0 ? -errno : static_cast<int>(returned);
}

/// The same, with the change noted if there was one. A file without a name has no path.
int answer(ssize_t returned, Kind kind, const char* path, std::string other = {},
           std::size_t offset = 0, std::string bytes = {}) {
    if (returned >= 0 && path != nullptr) {
        noted.push_back({kind, path + 1, std::move(other), offset, std::move(bytes)});
    }
    return answer(returned);
}

int openFile(const char* path, fuse_file_info* file, mode_t mode) {
    const int opened = openat(hidden, below(path), file->flags, mode);
    file->fh = static_cast<std::uint64_t>(opened);
    return std::min(answer(opened), 0);
}

int listNames(const char* path, void* buffer, fuse_fill_dir_t fill, off_t, fuse_file_info*,
              fuse_readdir_flags) {
    DIR* const folder = fdopendir(openat(hidden, below(path), O_RDONLY | O_DIRECTORY));
    if (folder == nullptr) {
        return -errno;
    }
    while (const dirent* const entry = readdir(folder)) {
        fill(buffer, entry->d_name, nullptr, 0, fuse_fill_dir_flags());
    }
    return answer(closedir(folder));
}

void setReading(fuse_operations& all) {
    all.init = [](fuse_conn_info*, fuse_config* config) -> void* {
        config->use_ino = 1;
        config->hard_remove = 1;  // else an open file would keep another name
        config->entry_timeout = config->attr_timeout = config->negative_timeout = 0;
        return nullptr;
    };
    all.getattr = [](const char* path, struct stat* status, fuse_file_info* file) {
        return answer(file != nullptr ? fstat(handle(file), status)
                                      : fstatat(hidden, below(path), status, AT_SYMLINK_NOFOLLOW));
    };
    all.readdir = listNames;
    all.read = [](const char*, char* buffer, std::size_t size, off_t at, fuse_file_info* file) {
        return answer(pread(handle(file), buffer, size, at));
    };
    all.release = [](const char*, fuse_file_info* file) { return answer(close(handle(file))); };
    all.chmod = [](const char* path, mode_t mode, fuse_file_info*) {
        return answer(fchmodat(hidden, below(path), mode, 0));
    };
    all.chown = [](const char* path, uid_t user, gid_t group, fuse_file_info*) {
        return answer(fchownat(hidden, below(path), user, group, AT_SYMLINK_NOFOLLOW));
    };
}

void setWriting(fuse_operations& all) {
    all.open = [](const char* path, fuse_file_info* file) {
        const int opened = openFile(path, file, 0);
        return (file->flags & O_TRUNC) == 0 ? opened : answer(opened, Kind::Cut, path);
    };
    all.create = [](const char* path, mode_t mode, fuse_file_info* file) {
        return answer(openFile(path, file, mode), Kind::Make, path);
    };
    all.write = [](const char* path, const char* bytes, std::size_t size, off_t at,
                   fuse_file_info* file) {
        return answer(pwrite(handle(file), bytes, size, at), Kind::Write, path, {},
                      static_cast<std::size_t>(at), {bytes, size});
    };
    all.truncate = [](const char* path, off_t size, fuse_file_info*) {
        const int file = openat(hidden, below(path), O_WRONLY);
        const int answered =
            answer(ftruncate(file, size), Kind::Cut, path, {}, static_cast<std::size_t>(size));
        close(file);
        return answered;
    };
    all.fsync = all.fsyncdir = [](const char* path, int, fuse_file_info*) {
        return answer(0, Kind::Sync, path);
    };
    all.rename = [](const char* from, const char* to, unsigned flags) {
        return answer(renameat2(hidden, below(from), hidden, below(to), flags),
                      (flags & RENAME_EXCHANGE) != 0 ? Kind::Swap : Kind::Move, from, to + 1);
    };
    all.link = [](const char* from, const char* to) {
        return answer(linkat(hidden, below(from), hidden, below(to), 0), Kind::Link, from, to + 1);
    };
    all.unlink = [](const char* path) {
        return answer(unlinkat(hidden, below(path), 0), Kind::Remove, path);
    };
    all.rmdir = [](const char* path) {
        return answer(unlinkat(hidden, below(path), AT_REMOVEDIR), Kind::Remove, path);
    };
    all.mkdir = [](const char* path, mode_t mode) {
        return answer(mkdirat(hidden, below(path), mode), Kind::MakeFolder, path);
    };
}

}  // namespace

std::optional<std::vector<Change>> recordByMount(const std::filesystem::path& folder,
                                                 const std::string& command) {
    hidden = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    noted.clear();
    fuse_operations operations{};
    setReading(operations);
    setWriting(operations);
    char name[] = "forgetful";
    char* arguments[] = {name, nullptr};
    fuse_args args{1, arguments, 0};
    fuse_set_log_func([](fuse_log_level, const char*, va_list) {});  // of what is not permitted
    fuse* const mount = fuse_new(&args, &operations, sizeof operations, nullptr);
    const bool isMounted = mount != nullptr && fuse_mount(mount, folder.c_str()) == 0;
    CommandResult result{0, {}};
    if (isMounted) {
        std::thread act([&] {
            result = runCommand("cd '" + folder.string() + "' && { " + command + "\n}");
            struct stat status{};
            stat(folder.c_str(), &status);  // is answered when all before is done
            fuse_exit(mount);
            stat(folder.c_str(), &status);  // wakes it up, to see that it is to end
        });
        fuse_loop(mount);
        fuse_unmount(mount);
        act.join();
    }
    if (mount != nullptr) {
        fuse_destroy(mount);
    }
    fuse_opt_free_args(&args);
    close(hidden);
    if (result.status != 0) {
        throw std::runtime_error(result.output);
    }
    return isMounted ? std::optional(noted) : std::nullopt;
}

}  // namespace fleetwright
