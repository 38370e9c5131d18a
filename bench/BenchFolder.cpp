#include "BenchFolder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace fleetwright {

namespace {

class BenchFolder {
public:
    explicit BenchFolder(const std::filesystem::path& parent) {
        std::string name = (parent / "fleetwright-bench-XXXXXX").string();
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
    static const BenchFolder folder(std::filesystem::temp_directory_path());
    return folder.path;
}

const std::vector<std::string>& shipFiles() {
    namespace fs = std::filesystem;
    static const std::vector<std::string> files = [] {
        const fs::path folder = benchFolder() / "ships";
        fs::create_directories(folder);
        std::vector<std::string> made;
        constexpr std::size_t wanted = 10'000;
        while (made.size() < wanted) {
            for (const fs::directory_entry& ship :
                 fs::directory_iterator(SOURCE_FOLDER "/data/ships")) {
                const fs::path file = folder / (std::to_string(made.size()) + ".shp");
                fs::copy_file(ship.path(), file, fs::copy_options::overwrite_existing);
                made.push_back(file.string());
            }
        }
        made.resize(wanted);
        return made;
    }();
    return files;
}

const std::filesystem::path& memoryFolder() {
    const std::filesystem::path memory = "/dev/shm";
    static const BenchFolder folder(
        std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path());
    return folder.path;
}

}  // namespace fleetwright
