#pragma once

#include "fileCalls.h"

#include <cerrno>

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
        hookFileCalls([this, nth, kind, code](FileCall, const std::filesystem::path&) {
            ++m_calls;
            const bool fails = nth > 0 && (kind == Kind::Fails ? m_calls == nth : m_calls >= nth);
            return fails ? std::error_code(code, std::generic_category()) : std::error_code();
        });
    }
    FileFaults(const FileFaults&) = delete;
    FileFaults& operator=(const FileFaults&) = delete;
    ~FileFaults() { hookFileCalls({}); }

    /// The number of calls so far.
    int calls() const { return m_calls; }

private:
    int m_calls = 0;
};

}  // namespace fleetwright
