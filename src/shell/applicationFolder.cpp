#include "applicationFolder.h"

#include "paths.h"
#include "refreshUserFolder.h"

namespace fleetwright {

namespace fs = std::filesystem;

fs::path applicationFolder(const fs::path& executableFolder) {
    const fs::path delivered = executableFolder / "delivered";
    if (!fs::is_directory(delivered)) {
        return executableFolder;
    }
    fs::path folder = userDataFolder();
    refreshUserFolder(delivered, folder);
    return folder;
}

}  // namespace fleetwright
