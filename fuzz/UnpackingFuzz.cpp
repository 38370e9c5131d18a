// The unpacking of the pictures. An input is what else happens to them in the application folder,
// between unpackings in which calls to the system fail.

#include "Error.h"
#include "FileFaults.h"
#include "FileTree.h"
#include "SheetPictures.h"
#include "require.h"
#include "unpackFiles.h"
#include "unpackImages.h"

#include <cerrno>
#include <cstdint>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

const std::string images = "app/images";
const std::vector<std::string> pictures = sheetPictures();

/// Unpacks an archive in which all pictures have these bytes; whether it says that it is done.
bool unpack(const FileTree& tree, const std::string& bytes, bool isRenewal) {
    const auto runArchive = [&bytes](const fs::path&, const fs::path& folder) {
        std::vector<ArchivedFile> files;
        for (const std::string& name : pictures) {
            files.push_back({name, bytes});
        }
        unpackFiles(files, folder);
        return true;
    };
    try {
        (isRenewal ? renewImages : unpackImages)(tree.path() / "app", tree.path() / "program",
                                                 runArchive);
    } catch (const FileError&) {
        return false;
    }
    return true;
}

/// The files with all pictures unpacked.
Files unpacked(Files files, const std::string& bytes) {
    files[images] = "folder";
    for (const std::string& name : pictures) {
        files[images + '/' + name] = "file " + bytes;
    }
    return files;
}

void checkUnpacking(const FileTree& tree, Choices& choices, const std::string& bytes) {
    const Files before = tree.files();
    const bool isRenewal = choices.oneIn(2);
    const Files wanted = isRenewal || !before.contains(images) ? unpacked(before, bytes) : before;
    const auto kind = choices.oneIn(2) ? FileFaults::Kind::Fails : FileFaults::Kind::IsLast;
    bool isDone = false;
    {
        constexpr int codes[] = {EIO, ENOSPC, ENOSYS};
        const FileFaults faults(choices.below(1300), kind, choices.pick(codes));
        isDone = unpack(tree, bytes, isRenewal);
    }
    Files after = tree.files();
    if (!after.contains(images) && before.contains(images)) {
        const bool isMadeGood = unpack(tree, bytes, false);
        require(isMadeGood, "pictures on their way can be brought back");
        after = tree.files();
    }
    std::erase_if(after, [](const auto& file) { return file.first.starts_with(images + '.'); });
    const std::string got = listing(after);
    requireSame(got, isDone || got != listing(before) ? listing(wanted) : got,
                "the old pictures are there or the new ones");
    if (unpack(tree, bytes, true)) {
        requireSame(listing(tree.files()), listing(unpacked(before, bytes)),
                    "the next run makes good what was cut short");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes choices({data, size});
    FileTree tree;
    tree.write("precious", "precious");
    tree.write("program/images.exe", "");
    fs::create_directory(tree.path() / "app");
    const std::string names[] = {images, images + "/mine", images + "/sub/mine",
                                 images + '/' + pictures.front()};
    for (int acts = 0; acts < 20 && !choices.areOver(); ++acts) {
        if (choices.oneIn(3)) {
            checkUnpacking(tree, choices, "new " + std::to_string(acts));
        } else {
            tree.meddle(choices, choices.pick(names), "old");
        }
    }
    return 0;
}
