#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace fleetwright {

/// A plain file that is open, until this object ends. None of its functions throws; the error is
/// empty where all went well.
class OpenFile {
public:
    enum class Use {
        Read,
        Write,  ///< what is there, which stays as it is until something is written; never by a link
        Create,  ///< a new file; fails with `file_exists` if there is anything of that name
    };

    /// Opens the file, without ever waiting for somebody at the other end: what is no plain file is
    /// refused as `whyNoFile` says.
    OpenFile(std::filesystem::path file, Use use, std::error_code& error);
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile();

    bool isOpen() const { return m_descriptor >= 0; }
    const std::filesystem::path& path() const { return m_path; }
    /// The system's number for it, for calls that are not made here.
    int descriptor() const { return m_descriptor; }
    /// Its bytes when it was opened to be read or written; 0 if the system could not tell.
    std::uintmax_t size() const { return m_size; }

    /// Reads on, at most so many bytes; how many have come. None, without an error: that was all.
    std::size_t read(char* bytes, std::size_t most, std::error_code& error);
    /// Has the next read begin at so many bytes from the start.
    std::error_code seek(std::uintmax_t place);
    /// Writes all of this on from where the last write ended.
    std::error_code write(std::string_view bytes);
    /// Cuts it off behind so many bytes.
    std::error_code resize(std::uintmax_t size);
    std::error_code setMode(std::filesystem::perms mode);
    /// Has the system begin with what `sync` waits for; so the syncs of many files take little
    /// longer than one.
    void startSync();
    /// Makes sure that what was written outlasts a power cut.
    std::error_code sync();
    /// Closes it before its time, to learn of what the system has put off until now.
    std::error_code close();

private:
    std::filesystem::path m_path;
    int m_descriptor = -1;
    std::uintmax_t m_size = 0;
};

}  // namespace fleetwright
