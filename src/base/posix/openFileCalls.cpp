#include "openFileCalls.h"

#include "fileCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fleetwright::openFileCalls {

int open(const std::filesystem::path& file, OpenFile::Use use, std::error_code& error) {
    const int how = use == OpenFile::Use::Read    ? O_RDONLY
                    : use == OpenFile::Use::Write ? O_WRONLY | O_NOFOLLOW
                                                  : O_WRONLY | O_CREAT | O_EXCL;
    const int descriptor = ::open(file.c_str(), how | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
    error = errorUnless(descriptor >= 0);
    return descriptor;
}

bool isPlain(int descriptor, std::uintmax_t& size) {
    struct stat status{};
    const bool isKnown = fstat(descriptor, &status) == 0;
    size = isKnown ? static_cast<std::uintmax_t>(status.st_size) : 0;
    return isKnown && S_ISREG(status.st_mode);
}

std::ptrdiff_t read(int descriptor, char* bytes, std::size_t most) {
    return ::read(descriptor, bytes, most);
}

std::ptrdiff_t write(int descriptor, std::string_view bytes) {
    return ::write(descriptor, bytes.data(), bytes.size());
}

bool seek(int descriptor, std::uintmax_t place) {
    return lseek(descriptor, static_cast<off_t>(place), SEEK_SET) >= 0;
}

bool resize(int descriptor, std::uintmax_t size) {
    return ftruncate(descriptor, static_cast<off_t>(size)) == 0;
}

void startSync([[maybe_unused]] int descriptor) {
#ifdef SYNC_FILE_RANGE_WRITE
    sync_file_range(descriptor, 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
}

bool sync(int descriptor) {
    return fsync(descriptor) == 0;
}

bool setMode(int descriptor, std::filesystem::perms mode) {
    return fchmod(descriptor, static_cast<mode_t>(mode & std::filesystem::perms::mask)) == 0;
}

bool close(int descriptor) {
    return ::close(descriptor) == 0;
}

}  // namespace fleetwright::openFileCalls
