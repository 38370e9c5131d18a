#pragma once

// What `OpenFile` asks of the system: its calls on open files, one source a system. Those that fail
// leave the reason in `errno`, but for the one that opens them.

#include "OpenFile.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace fleetwright::openFileCalls {

/// The number of the open file; negative if it cannot be opened. Nobody waits at a pipe.
int open(const std::filesystem::path& file, OpenFile::Use use, std::error_code& error);
/// Whether it is a plain file, and how large.
bool isPlain(int descriptor, std::uintmax_t& size);
/// How many bytes were read or written; negative after a failure.
std::ptrdiff_t read(int descriptor, char* bytes, std::size_t most);
std::ptrdiff_t write(int descriptor, std::string_view bytes);
/// Goes to so many bytes from the start.
bool seek(int descriptor, std::uintmax_t place);
bool resize(int descriptor, std::uintmax_t size);
/// Has the system begin to write; nobody hears of a failure.
void startSync(int descriptor);
bool sync(int descriptor);
bool setMode(int descriptor, std::filesystem::perms mode);
bool close(int descriptor);

}  // namespace fleetwright::openFileCalls
