#pragma once

// What tests ask of the system, one source a system.

#include <filesystem>
#include <string>

namespace fleetwright {

/// The variable of the environment that says where a user's data are.
extern const char* const userDataVariable;
/// Whether anybody may make symbolic links.
extern const bool canMakeLinks;

/// Whether nobody but this user may read a file below the folder for his data.
bool isUsersAlone(const std::filesystem::path& file);

/// Sets a variable of this process's environment.
void setVariable(const std::string& name, const std::string& value);
/// Takes one away.
void unsetVariable(const std::string& name);

/// A new folder for temporary files that only this user may enter.
std::filesystem::path newTemporaryFolder();

}  // namespace fleetwright
