// The picture archive: a program that carries the pictures and, with "-o", unpacks them into the
// current folder.

#include "Error.h"
#include "saveFile.h"
#include "text.h"
#include "unpackFiles.h"

#include <cstdio>
#include <cstring>
#include <exception>

int main(int argc, char** argv) {
    using namespace fleetwright;
    letFileSizeLimitFail();
    if (argc != 2 || std::strcmp(argv[1], "-o") != 0) {
        std::fprintf(stderr,
                     "The pictures of FleetWright, %zu files. With the option -o they are "
                     "unpacked into the current folder, over those that are there.\n",
                     archivedPictures().size());
        return 2;
    }
    try {
        unpackFiles(archivedPictures(), std::filesystem::current_path());
    } catch (const FileError& error) {
        std::fprintf(stderr, "%s\n", complaint(error).c_str());
        return 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", shownText(argv[0]).c_str(), error.what());
        return 1;
    }
    return 0;
}
