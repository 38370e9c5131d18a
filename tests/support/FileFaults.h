#pragma once

#include "fileCalls.h"

#include <cerrno>
#include <optional>
#include <utility>

namespace fleetwright {

/// Counts the file calls of the program while it lives, and has one of them fail.
class FileFaults {
public:
    enum class Kind {
        Fails,   ///< this call fails, and all others are made
        IsLast,  ///< it is the last one: it and all behind it fail, which leaves a disk as a kill
                 ///< does
    };

    /// The call number `nth`, counted from 1, fails with the error `code`; none if it is 0.
    explicit FileFaults(int nth = 0, Kind kind = Kind::Fails, int code = EIO) {
        hookFileCalls([this, nth, kind, code](FileCall call, const std::filesystem::path& path) {
            ++m_calls;
            if (m_forbidden == call && (m_closed.empty() || path.parent_path() == m_closed)) {
                return std::make_error_code(std::errc::permission_denied);
            }
            const bool fails = nth > 0 && (kind == Kind::Fails ? m_calls == nth : m_calls >= nth);
            return fails ? std::error_code(code, std::generic_category()) : std::error_code();
        });
    }
    FileFaults(const FileFaults&) = delete;
    FileFaults& operator=(const FileFaults&) = delete;
    ~FileFaults() { hookFileCalls({}); }

    /// Has all calls of this kind fail for want of a right, or those about entries of one folder.
    void forbid(FileCall call, std::filesystem::path folder = {}) {
        m_forbidden = call;
        m_closed = std::move(folder);
    }
    /// The number of calls so far.
    int calls() const { return m_calls; }

private:
    int m_calls = 0;
    std::optional<FileCall> m_forbidden;
    std::filesystem::path m_closed;  ///< where that is forbidden; everywhere if it is empty
};

}  // namespace fleetwright
