#include "OpenFile.h"

#include "fileCalls.h"
#include "openFileCalls.h"

#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

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
    m_descriptor = openFileCalls::open(m_path, use, error);
    // What has just been made is a plain file.
    if (!error && use != Use::Create && !openFileCalls::isPlain(m_descriptor, m_size)) {
        // Another one has been put there meanwhile.
        error = whyNoFile(fs::file_status(fs::file_type::unknown));
    }
}

OpenFile::~OpenFile() {
    if (isOpen()) {
        openFileCalls::close(m_descriptor);
    }
}

std::size_t OpenFile::read(char* bytes, std::size_t most, std::error_code& error) {
    error = objection(FileCall::Read, m_path);
    if (error) {
        return 0;
    }
    const auto count = openFileCalls::read(m_descriptor, bytes, most);
    error = errorUnless(count >= 0);
    return error ? 0 : static_cast<std::size_t>(count);
}

std::error_code OpenFile::seek(std::uintmax_t place) {
    return errorUnless(openFileCalls::seek(m_descriptor, place));
}

std::error_code OpenFile::write(std::string_view bytes) {
    std::error_code error = objection(FileCall::Write, m_path);
    while (!error && !bytes.empty()) {
        const auto count = openFileCalls::write(m_descriptor, bytes);
        error = errorUnless(count >= 0);
        bytes.remove_prefix(error ? 0 : static_cast<std::size_t>(count));
    }
    return error;
}

std::error_code OpenFile::resize(std::uintmax_t size) {
    const std::error_code error = objection(FileCall::Resize, m_path);
    return error ? error : errorUnless(openFileCalls::resize(m_descriptor, size));
}

std::error_code OpenFile::setMode(fs::perms mode) {
    const std::error_code error = objection(FileCall::SetMode, m_path);
    return error ? error : errorUnless(openFileCalls::setMode(m_descriptor, mode));
}

void OpenFile::startSync() {
    openFileCalls::startSync(m_descriptor);
}

std::error_code OpenFile::sync() {
    const std::error_code error = objection(FileCall::Sync, m_path);
    return error ? error : errorUnless(openFileCalls::sync(m_descriptor));
}

std::error_code OpenFile::close() {
    const std::error_code error = objection(FileCall::Close, m_path);
    // Closed in any case, the system's failure included: none can close it once more.
    const std::error_code notClosed =
        errorUnless(openFileCalls::close(std::exchange(m_descriptor, -1)));
    return error ? error : notClosed;
}

}  // namespace fleetwright
