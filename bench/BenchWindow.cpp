#include "BenchWindow.h"

#include "BenchFolder.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// The delivered catalogue, its systems repeated under further names until there are so many
/// records.
void writeCatalogue(const fs::path& file, int records) {
    std::ifstream in(SOURCE_FOLDER "/data/weaps.dat", std::ios::binary);
    std::ofstream out(file, std::ios::binary);
    std::vector<std::string> systems;
    for (std::string line; std::getline(in, line);) {
        out << line << '\n';
        if (line.size() > 1 && line.front() != '#') {
            --records;
            if (line.rfind("CATEGORY,", 0) != 0) {
                systems.push_back(line);
            }
        }
    }
    for (std::size_t i = 0; records > 0; ++i, --records) {
        const std::string& system = systems[i % systems.size()];
        const std::size_t end = system.find(',');
        out << system.substr(0, end) << " Mk " << i / systems.size() + 2 << system.substr(end)
            << '\n';
    }
}

}  // namespace

fs::path benchApplication(int records) {
    fs::path folder = benchFolder() / ("application-" + std::to_string(records));
    if (!fs::exists(folder)) {
        fs::create_directories(folder / "images");
        writeCatalogue(folder / "weaps.dat", records);
        fs::copy_file(APP_FOLDER "/w_dll.dll", folder / "w_dll.dll");
        const std::string unpack =
            "cd '" + (folder / "images").string() + "' && " APP_FOLDER "/images.exe -o";
        if (std::system(unpack.c_str()) != 0) {
            throw std::runtime_error("the pictures could not be unpacked");
        }
    }
    return folder;
}

BenchWindow::BenchWindow(const fs::path& appFolder)
    : m_form(m_silent.services(appFolder, m_pictures)) {
    m_form.show();
}

}  // namespace fleetwright
