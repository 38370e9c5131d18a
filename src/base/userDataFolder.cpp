#include "userDataFolder.h"

#include "Error.h"

#include <cstdlib>

#if __has_include(<pwd.h>)
#include <pwd.h>
#include <unistd.h>
#endif

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

fs::path variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? fs::path() : fs::path(value);
}

fs::path homeFolder() {
    fs::path home = variable("HOME");
#if __has_include(<pwd.h>)
    if (home.empty()) {
        const passwd* const user = getpwuid(getuid());
        home = user == nullptr ? fs::path() : fs::path(user->pw_dir);
    }
#endif
    if (home.empty()) {
        throw FileError("~", "the user has no home folder");
    }
    return home;
}

}  // namespace

fs::path userDataFolder() {
    constexpr const char* ours = "FleetWright";
    const fs::path dataHome = variable("XDG_DATA_HOME");
    // The desktop's rule: a relative path there counts for nothing.
    return dataHome.is_absolute() ? dataHome / ours : homeFolder() / ".local" / "share" / ours;
}

}  // namespace fleetwright
