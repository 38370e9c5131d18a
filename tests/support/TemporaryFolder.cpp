#include "TemporaryFolder.h"

#include "paths.h"
#include "testSystem.h"

#include <fstream>
#include <iterator>

namespace fleetwright {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() : m_path(newTemporaryFolder()) {}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::permissions(m_path, fs::perms::owner_all, ignored);
    fs::remove_all(m_path, ignored);
}

std::string TemporaryFolder::write(const std::string& name, std::string_view contents) const {
    const fs::path file = m_path / nativePath(name);
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << contents;
    return file.string();
}

std::string TemporaryFolder::read(const std::string& name) const {
    std::ifstream file(m_path / nativePath(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

int TemporaryFolder::entries() const {
    return static_cast<int>(std::distance(fs::directory_iterator(m_path), {}));
}

}  // namespace fleetwright
