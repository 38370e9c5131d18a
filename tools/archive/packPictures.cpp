// Writes the files of a folder as C++ source that defines archivedPictures().

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <vector>

namespace fs = std::filesystem;

namespace {

void writeEntry(std::ostream& out, const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
    out << "    {\"" << file.filename().string() << "\", std::string_view(\"";
    for (const char byte : bytes) {
        out << '\\' << std::setw(3) << static_cast<int>(static_cast<unsigned char>(byte));
    }
    out << "\", 0" << bytes.size() << ")},\n";
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "Usage: pack-pictures FOLDER SOURCE\n");
        return 2;
    }
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(argv[1])) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());

    std::ofstream out(argv[2], std::ios::binary);
    // Octal, since an octal escape ends after three digits whatever follows.
    out << "#include \"PictureArchive.h\"\n\nnamespace fleetwright {\n\n"
           "static const ArchivedFile pictures[] = {\n"
        << std::oct << std::setfill('0');
    for (const fs::path& file : files) {
        writeEntry(out, file);
    }
    out << "};\n\nstd::span<const ArchivedFile> archivedPictures() {\n    return pictures;\n}\n\n"
           "}  // namespace fleetwright\n";
    out.close();
    if (!out) {
        std::fprintf(stderr, "%s: cannot be written\n", argv[2]);
        return 1;
    }
    return 0;
}
