// Saving over whatever stands there, while calls to the system fail. An input is what stands there,
// what is saved, and which call fails.

#include "Error.h"
#include "FileFaults.h"
#include "FileTree.h"
#include "TemporaryFile.h"
#include "require.h"
#include "saveFile.h"

#include <algorithm>
#include <cerrno>

#include <cstdint>
#include <cstdlib>
#include <string>

#include <sys/stat.h>

using namespace fleetwright;

namespace {

bool save(const fs::path& target, const std::string& contents) {
    try {
        saveFile(target, contents);
    } catch (const FileError& error) {
        require(error.file() == target, "an error names the file");
        return false;
    }
    return true;
}

/// Each file must be whole, the old one or the new, or be put aside as it was.
void checkFiles(const Files& before, const FileTree& tree, const std::string& wanted, bool isHit) {
    const Files after = tree.files();
    const auto isAside = [&after](const std::string& what) {
        return std::ranges::any_of(after, [&what](const auto& each) {
            return each.first.starts_with("aside/") && each.second == what;
        });
    };
    for (const auto& [path, what] : after) {
        const auto old = before.find(path);
        std::error_code isLoop;
        const bool isNew = what == wanted &&
                           fs::equivalent(tree.path() / path, tree.path() / "ships/target", isLoop);
        const bool isOld = old != before.end() && (old->second == what || isAside(old->second));
        require(isNew || isOld || path.starts_with("aside") ||
                    (TemporaryFile::isOne(path) && isHit),
                "what stands there is whole, the old or the new: " + path);
    }
    for (const auto& [path, what] : before) {
        require(after.contains(path), "nothing goes: " + path);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes choices({data, size});
    FileTree tree;
    setenv("XDG_DATA_HOME", (tree.path() / "aside").c_str(), 1);
    tree.write("precious", "precious");
    tree.write("ships/other", "other");
    const fs::path target = tree.path() / "ships/target";
    if (choices.oneIn(8)) {
        mkfifo(target.c_str(), S_IRWXU);
    }
    for (int i = choices.below(4); i > 0; --i) {
        const std::string name = choices.oneIn(4) ? "ships" : "ships/target";
        tree.meddle(choices, choices.oneIn(4) ? "precious" : name, "old");
    }
    const Files before = tree.files();
    const std::string contents(static_cast<std::size_t>(choices.below(20'000)), 'n');
    constexpr int codes[] = {EIO, ENOSPC, EACCES, EROFS, EINTR, ENOENT};
    constexpr FileCall rights[] = {FileCall::Create, FileCall::Rename, FileCall::SetOwner};
    const int nth = choices.below(60);
    const auto kind = choices.oneIn(2) ? FileFaults::Kind::Fails : FileFaults::Kind::IsLast;
    bool isSaved = false, isHit = false;
    {
        FileFaults faults(nth, kind, choices.pick(codes));
        if (choices.oneIn(3)) {
            faults.forbid(choices.pick(rights), target.parent_path());
        }
        isSaved = save(target, contents);
        isHit = nth > 0 && faults.calls() >= nth;
    }
    checkFiles(before, tree, "file " + contents, isHit);
    require(!isSaved || readBytes(target) == contents, "what is reported saved is there");
    if (isHit) {
        TemporaryFile::takeLeftOnesAway(tree.path());
        TemporaryFile::takeLeftOnesAway(tree.path() / "ships");
        save(target, contents);
        checkFiles(before, tree, "file " + contents, false);
    }
    return 0;
}
