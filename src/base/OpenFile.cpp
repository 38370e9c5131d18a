#include "OpenFile.h"

#include "fileCalls.h"

#include <utility>

#if __has_include(<unistd.h>)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#endif

namespace fleetwright {

namespace fs = std::filesystem;

#if __has_include(<unistd.h>)

namespace {

int openPlain(const fs::path& file, OpenFile::Use use) {
    const int how = use == OpenFile::Use::Read    ? O_RDONLY
                    : use == OpenFile::Use::Write ? O_WRONLY | O_NOFOLLOW
                                                  : O_WRONLY | O_CREAT | O_EXCL;
    return open(file.c_str(), how | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
}

/// Whether it is a plain file, and how large.
bool isPlain(int descriptor, std::uintmax_t& size) {
    struct stat status {};
    const bool isKnown = fstat(descriptor, &status) == 0;
    size = isKnown ? static_cast<std::uintmax_t>(status.st_size) : 0;
    return isKnown && S_ISREG(status.st_mode);
}

auto readSome(int descriptor, char* bytes, std::size_t most) {
    return ::read(descriptor, bytes, most);
}

auto writeSome(int descriptor, std::string_view bytes) {
    return ::write(descriptor, bytes.data(), bytes.size());
}

bool resizeTo(int descriptor, std::uintmax_t size) {
    return ftruncate(descriptor, static_cast<off_t>(size)) == 0;
}

bool syncToDisk(int descriptor) {
    return fsync(descriptor) == 0;
}

bool changeMode(int descriptor, fs::perms mode) {
    return fchmod(descriptor, static_cast<mode_t>(mode & fs::perms::mask)) == 0;
}

}  // namespace

#else

namespace {

int openPlain(const fs::path& file, OpenFile::Use use) {
    const int how = use == OpenFile::Use::Read    ? _O_RDONLY
                    : use == OpenFile::Use::Write ? _O_WRONLY
                                                  : _O_WRONLY | _O_CREAT | _O_EXCL;
    return _wopen(file.c_str(), how | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

bool isPlain(int descriptor, std::uintmax_t& size) {
    size = static_cast<std::uintmax_t>(std::max(_filelengthi64(descriptor), 0LL));
    return true;
}

/// The system counts in 32 bits.
constexpr std::size_t mostAtOnce = 1 << 30;

auto readSome(int descriptor, char* bytes, std::size_t most) {
    return _read(descriptor, bytes, static_cast<unsigned>(std::min(most, mostAtOnce)));
}

auto writeSome(int descriptor, std::string_view bytes) {
    return _write(descriptor, bytes.data(),
                  static_cast<unsigned>(std::min(bytes.size(), mostAtOnce)));
}

bool resizeTo(int descriptor, std::uintmax_t size) {
    return _chsize_s(descriptor, static_cast<long long>(size)) == 0;
}

bool syncToDisk(int descriptor) {
    return _commit(descriptor) == 0;
}

bool changeMode(int, fs::perms) {
    return true;
}

}  // namespace

#endif

OpenFile::OpenFile(fs::path file, Use use, std::error_code& error) : m_path(std::move(file)) {
    error = objection(use == Use::Create ? FileCall::Create : FileCall::Open, m_path);
    std::error_code unknown;
    if (!error && use != Use::Create) {
        // Before it is opened, since that alone may already move a device.
        error = whyNoFile(fs::status(m_path, unknown));
    }
    if (error) {
        return;
    }
    m_descriptor = openPlain(m_path, use);
    error = errorUnless(isOpen());
    // What has just been made is a plain file.
    if (!error && use != Use::Create && !isPlain(m_descriptor, m_size)) {
        // Another one has been put there meanwhile.
        error = whyNoFile(fs::file_status(fs::file_type::unknown));
    }
}

OpenFile::~OpenFile() {
    if (isOpen()) {
        ::close(m_descriptor);
    }
}

std::size_t OpenFile::read(char* bytes, std::size_t most, std::error_code& error) {
    if ((error = objection(FileCall::Read, m_path))) {
        return 0;
    }
    const auto count = readSome(m_descriptor, bytes, most);
    error = errorUnless(count >= 0);
    return error ? 0 : static_cast<std::size_t>(count);
}

std::error_code OpenFile::write(std::string_view bytes) {
    std::error_code error = objection(FileCall::Write, m_path);
    while (!error && !bytes.empty()) {
        const auto count = writeSome(m_descriptor, bytes);
        error = errorUnless(count >= 0);
        bytes.remove_prefix(error ? 0 : static_cast<std::size_t>(count));
    }
    return error;
}

std::error_code OpenFile::resize(std::uintmax_t size) {
    const std::error_code error = objection(FileCall::Resize, m_path);
    return error ? error : errorUnless(resizeTo(m_descriptor, size));
}

std::error_code OpenFile::setMode(fs::perms mode) {
    const std::error_code error = objection(FileCall::SetMode, m_path);
    return error ? error : errorUnless(changeMode(m_descriptor, mode));
}

void OpenFile::startSync() {
#ifdef SYNC_FILE_RANGE_WRITE
    sync_file_range(m_descriptor, 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
}

std::error_code OpenFile::sync() {
    const std::error_code error = objection(FileCall::Sync, m_path);
    return error ? error : errorUnless(syncToDisk(m_descriptor));
}

std::error_code OpenFile::close() {
    const std::error_code error = objection(FileCall::Close, m_path);
    // Closed in any case, the system's failure included: none can close it once more.
    const std::error_code notClosed = errorUnless(::close(std::exchange(m_descriptor, -1)) == 0);
    return error ? error : notClosed;
}

}  // namespace fleetwright
