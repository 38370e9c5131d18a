#include "executableFolder.h"

#include <system_error>

namespace fleetwright {

std::filesystem::path executableFolder(const char* argv0) {
    std::error_code error;
    std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) {
        executable = std::filesystem::absolute(argv0, error);
    }
    return executable.parent_path();
}

}  // namespace fleetwright
