#include "userPlaces.h"

#include "Error.h"
#include "fileCalls.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <system_error>

namespace fleetwright::userPlaces {

namespace fs = std::filesystem;

namespace {

fs::path variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? fs::path() : fs::path(value);
}

fs::path homeFolder() {
    fs::path home = variable("HOME");
    if (home.empty()) {
        const passwd* const user = getpwuid(getuid());
        home = user == nullptr ? fs::path() : fs::path(user->pw_dir);
    }
    if (home.empty()) {
        throw FileError("~", "the user has no home folder");
    }
    return home;
}

/// A folder that a variable of the desktop names, or else one below the user's home.
fs::path userFolder(const char* name, const char* belowHome) {
    const fs::path folder = variable(name);
    // The desktop's rule: a relative path there counts for nothing.
    return folder.is_absolute() ? folder : homeFolder() / belowHome;
}

}  // namespace

fs::path data() {
    return userFolder("XDG_DATA_HOME", ".local/share");
}

fs::path cache() {
    return userFolder("XDG_CACHE_HOME", ".cache");
}

fs::path executable() {
    const fs::path link = "/proc/self/exe";
    std::error_code unknown = objection(FileCall::Open, link);
    return unknown ? fs::path() : fs::read_symlink(link, unknown);
}

}  // namespace fleetwright::userPlaces
