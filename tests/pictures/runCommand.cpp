#include "runCommand.h"

#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <sys/wait.h>

namespace fleetwright {

namespace fs = std::filesystem;

CommandResult runCommand(const std::string& command) {
    CommandResult result;
    std::FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) {
        return result;
    }
    char buffer[4096];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, pipe)) {
        result.output.append(buffer, count);
    }
    const int status = pclose(pipe);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

ScratchFolder::ScratchFolder() {
    std::string name = (fs::temp_directory_path() / "fleetwright-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw fs::filesystem_error("no scratch folder", name, std::error_code());
    }
    m_path = name;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

int ScratchFolder::count() const {
    return static_cast<int>(
        std::distance(fs::directory_iterator(m_path), fs::directory_iterator()));
}

}  // namespace fleetwright
