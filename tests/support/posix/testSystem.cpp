#include "testSystem.h"

#include <cstdlib>
#include <stdexcept>

namespace fleetwright {

const char* const userDataVariable = "XDG_DATA_HOME";
const bool canMakeLinks = true;

bool isUsersAlone(const std::filesystem::path& file) {
    return std::filesystem::status(file).permissions() == std::filesystem::perms(0600);
}

void setVariable(const std::string& name, const std::string& value) {
    setenv(name.c_str(), value.c_str(), 1);
}

void unsetVariable(const std::string& name) {
    unsetenv(name.c_str());
}

std::filesystem::path newTemporaryFolder() {
    std::string name =
        (std::filesystem::temp_directory_path() / "fleetwright-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no temporary folder");
    }
    return name;
}

}  // namespace fleetwright
