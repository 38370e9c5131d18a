#include "entryCalls.h"

#include "fileCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace fleetwright::entryCalls {

namespace fs = std::filesystem;

std::error_code rename(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    return error;
}

bool renamesToNew([[maybe_unused]] const fs::path& from, [[maybe_unused]] const fs::path& to,
                  [[maybe_unused]] std::error_code& error) {
#ifdef RENAME_NOREPLACE
    error =
        errorUnless(renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0);
    return error != std::errc::invalid_argument && error != std::errc::function_not_supported;
#else
    return false;
#endif
}

std::error_code exchange([[maybe_unused]] const fs::path& one,
                         [[maybe_unused]] const fs::path& other) {
#ifdef RENAME_EXCHANGE
    if (renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0) {
        return {};
    }
    if (errno != EINVAL) {  // file systems that cannot do it say so with that
        return lastError();
    }
#endif
    return std::make_error_code(std::errc::function_not_supported);
}

std::error_code makePrivateFolder(const fs::path& folder) {
    return errorUnless(mkdir(folder.c_str(), S_IRWXU) == 0);
}

std::error_code syncFolder(const fs::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        if (errno != EACCES) {
            return lastError();
        }
        sync();  // who may write there, but not look, has everything synced instead
        return {};
    }
    // Some file systems have nothing to sync.
    const std::error_code error = errorUnless(fsync(descriptor) == 0 || errno == EINVAL);
    close(descriptor);
    return error;
}

std::vector<fs::directory_entry> entriesIn(const fs::path& folder, std::error_code& error) {
    std::vector<fs::directory_entry> entries;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        entries.push_back(*entry);
    }
    return entries;
}

std::error_code mayWrite(const fs::path& file) {
    return errorUnless(faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) == 0);
}

std::uintmax_t nameCount(const fs::path& file) {
    std::error_code error;
    const std::uintmax_t names = fs::hard_link_count(file, error);
    return error ? 0 : names;
}

const char* whyNoName(const fs::path&) {
    return "";
}

}  // namespace fleetwright::entryCalls
