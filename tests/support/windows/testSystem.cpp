#include "testSystem.h"

#include <cstdlib>
#include <random>

namespace fleetwright {

namespace fs = std::filesystem;

const char* const userDataVariable = "APPDATA";
const bool canMakeLinks = false;

bool isUsersAlone(const fs::path&) {
    return true;  // as that folder is
}

void setVariable(const std::string& name, const std::string& value) {
    _wputenv_s(fs::path(name).c_str(), fs::path(value).c_str());
}

void unsetVariable(const std::string& name) {
    setVariable(name, "");
}

fs::path newTemporaryFolder() {
    fs::path folder;
    do {
        folder = fs::temp_directory_path() /
                 ("fleetwright-test-" + std::to_string(std::random_device()()));
    } while (!fs::create_directory(folder));
    return folder;
}

}  // namespace fleetwright
