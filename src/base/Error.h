#pragma once

#include "text.h"

#include <filesystem>
#include <stdexcept>
#include <string>

namespace fleetwright {

/// Base of every failure that this program raises itself: bad input, a file that cannot be used,
/// a number out of range. `what()` is a text for the user, without file and line.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A result left the width of its field. Nothing was stored.
class OverflowError : public Error {
public:
    OverflowError() : Error("number too large") {}
};

/// A text that should be a whole number is none.
class NotANumberError : public Error {
public:
    explicit NotANumberError(const std::string& text) : Error(quote(text) + " is no number") {}
};

/// A file could not be opened, read or written.
class FileError : public Error {
public:
    FileError(std::filesystem::path file, const std::string& fault)
        : Error(fault), m_file(std::move(file)) {}

    const std::filesystem::path& file() const { return m_file; }

private:
    std::filesystem::path m_file;
};

/// Which file failed and why, as one line of text.
inline std::string complaint(const FileError& error) {
    return shownText(error.file().string()) + ": " + error.what();
}

/// What has gone wrong with a file, for a line that begins with its name. Where it is another file
/// that is at fault, that is named.
inline std::string faultOf(const std::filesystem::path& file, const Error& error) {
    const auto* const failed = dynamic_cast<const FileError*>(&error);
    return failed == nullptr || failed->file() == file ? error.what() : complaint(*failed);
}

/// Such a line.
inline std::string complaint(const std::filesystem::path& file, const Error& error) {
    return shownText(file.string()) + ": " + faultOf(file, error);
}

}  // namespace fleetwright
