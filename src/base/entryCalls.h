#pragma once

// What the system does with names of files and folders, one source a system. The error is empty
// where all went well.

#include <cstdint>
#include <filesystem>
#include <system_error>
#include <vector>

namespace fleetwright::entryCalls {

/// Gives an entry another name, in one step and over what has it already.
std::error_code rename(const std::filesystem::path& from, const std::filesystem::path& to);
/// The same, but never over anything. False if the system cannot do that in one step.
bool renamesToNew(const std::filesystem::path& from, const std::filesystem::path& to,
                  std::error_code& error);
/// Exchanges two names in one step; `function_not_supported` where that is not possible.
std::error_code exchange(const std::filesystem::path& one, const std::filesystem::path& other);
/// Makes a folder for nobody but the user.
std::error_code makePrivateFolder(const std::filesystem::path& folder);
/// Makes the names of a folder outlast a power cut.
std::error_code syncFolder(const std::filesystem::path& folder);
/// What stands in a folder, in no order; what was found before an error.
std::vector<std::filesystem::directory_entry> entriesIn(const std::filesystem::path& folder,
                                                        std::error_code& error);
/// Whether the user may write to a file that is there.
std::error_code mayWrite(const std::filesystem::path& file);
/// How many names a file has; 0 if the system does not say.
std::uintmax_t nameCount(const std::filesystem::path& file);
/// Why no file can have this name, in words; empty if one can.
const char* whyNoName(const std::filesystem::path& file);

}  // namespace fleetwright::entryCalls
