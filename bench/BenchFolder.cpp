#include "BenchFolder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace fleetwright {

namespace {

class BenchFolder {
public:
    BenchFolder() {
        std::string name =
            (std::filesystem::temp_directory_path() / "fleetwright-bench-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        path = name;
    }
    BenchFolder(const BenchFolder&) = delete;
    BenchFolder& operator=(const BenchFolder&) = delete;
    ~BenchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    std::filesystem::path path;
};

}  // namespace

const std::filesystem::path& benchFolder() {
    static const BenchFolder folder;
    return folder.path;
}

}  // namespace fleetwright
