// The application folder of an installed program. An input is what happens to the delivered files
// and to the user's, the records of what was given among them, between starts of the program, and
// which call to the system fails in each.

#include "Error.h"
#include "FileFaults.h"
#include "FileTree.h"
#include "TemporaryFile.h"
#include "applicationFolder.h"
#include "require.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace fleetwright;

namespace {

constexpr const char* names[] = {"weaps.dat", "ships/a b.shp", "ships",       "x",
                                 "x/y",       "w_dll.dll",     ".delivering", ".delivered"};
const std::string users = "FleetWright/";
const std::string twin = "twin/";
const std::string share = "share/";

bool refresh(const FileTree& tree, const std::string& folder) {
    try {
        refreshUserFolder(tree.path() / share, tree.path() / folder);
    } catch (const FileError&) {
        return false;
    }
    return true;
}

/// What stands in one of the folders, without what a cut may leave for a later start.
Files filesIn(const FileTree& tree, const std::string& folder) {
    Files files;
    for (const auto& [path, what] : tree.files()) {
        const std::string name = path.starts_with(folder) ? path.substr(folder.size()) : "";
        if (!name.empty() && !TemporaryFile::isOne(name) && name != ".delivering" &&
            !name.starts_with(".arriving")) {
            files[name] = what;
        }
    }
    return files;
}

std::string contentsOf(const std::string& what) {
    return what.substr(std::min(what.find(' '), what.size()));
}

/// A start may give what is delivered, and nothing else.
void checkUsersFiles(const FileTree& tree, const Files& before) {
    const Files delivered = filesIn(tree, share), after = filesIn(tree, users);
    for (const auto& [path, what] : before) {
        const bool mayGo = path == "w_dll.dll" || path == ".delivered";
        require(after.contains(path) || (mayGo && what.starts_with("link")),
                "nothing goes: " + path);
    }
    for (const auto& [path, what] : after) {
        const auto earlier = before.find(path);
        const std::string had = earlier == before.end() ? "" : earlier->second;
        if (had != what && path != ".delivered") {
            const auto source = delivered.find(path);
            require(source != delivered.end() && contentsOf(source->second) == contentsOf(what),
                    "the user gets what is delivered: " + path);
            require(!had.starts_with("file mine") && !had.starts_with("protected"),
                    "what the user has changed or protected stays: " + path);
        }
    }
}

void start(const FileTree& tree, Choices& choices) {
    fs::create_directory(tree.path() / users);
    fs::remove_all(tree.path() / twin);
    fs::copy(tree.path() / users, tree.path() / twin,
             fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    const Files before = filesIn(tree, users), delivered = filesIn(tree, share);
    {
        const FileFaults faults(choices.below(80), choices.oneIn(2) ? FileFaults::Kind::Fails
                                                                    : FileFaults::Kind::IsLast);
        refresh(tree, users);
    }
    checkUsersFiles(tree, before);
    if (refresh(tree, users) && refresh(tree, twin)) {
        const Files after = filesIn(tree, users);
        requireSame(listing(after), listing(filesIn(tree, twin)),
                    "a start that was cut short is made good");
        require(refresh(tree, users) && filesIn(tree, users) == after,
                "a second start changes nothing");
    }
    checkUsersFiles(tree, before);
    require(tree.read("precious") == "precious" && filesIn(tree, share) == delivered,
            "nothing outside the user's folder is touched");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes choices({data, size});
    FileTree tree;
    tree.write("precious", "precious");
    fs::create_directory(tree.path() / share);
    for (int acts = 0; acts < 50 && !choices.areOver(); ++acts) {
        if (choices.oneIn(4)) {
            start(tree, choices);
        } else {
            const bool isUsers = choices.oneIn(2);
            tree.meddle(choices, (isUsers ? users : share) + names[choices.below(isUsers ? 8 : 6)],
                        isUsers ? "mine" : "version");
            tree.write("precious", "precious");
        }
    }
    return 0;
}
