// Writes the files of a folder as C++ source that defines archivedPictures().

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

void writeEntry(std::ostream& out, const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
    if (!in || bytes.empty()) {
        throw std::runtime_error(file.string() + ": cannot be read");
    }
    out << "    {\"" << file.filename().string() << "\", std::string_view(\"";
    for (const char byte : bytes) {
        out << '\\' << std::setw(3) << static_cast<int>(static_cast<unsigned char>(byte));
    }
    out << "\", 0" << bytes.size() << ")},\n";
}

void packFolder(const char* folder, const char* source) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());

    std::ofstream out(source, std::ios::binary);
    // Octal, since an octal escape ends after three digits whatever follows.
    out << "#include \"unpackFiles.h\"\n\nnamespace fleetwright {\n\n"
           "static const ArchivedFile pictures[] = {\n"
        << std::oct << std::setfill('0');
    for (const fs::path& file : files) {
        writeEntry(out, file);
    }
    out << "};\n\nstd::span<const ArchivedFile> archivedPictures() {\n    return pictures;\n}\n\n"
           "}  // namespace fleetwright\n";
    out.close();
    if (!out) {
        throw std::runtime_error(std::string(source) + ": cannot be written");
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "Usage: pack-pictures FOLDER SOURCE\n");
        return 2;
    }
    try {
        packFolder(argv[1], argv[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
