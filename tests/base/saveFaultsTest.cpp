// Saves of which one call to the system fails, or is the last one: in each place in turn, and for
// each kind of target.

#include "FileFaults.h"

#include "Error.h"
#include "TemporaryFile.h"
#include "TemporaryFolder.h"
#include "saveFile.h"
#include "testSystem.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <optional>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

const std::string oldContents(5000, 'o'), newContents = "new";

std::optional<FileCall> forbiddenFor(const std::string& kind) {
    return kind == "no new file" ? FileCall::Create
           : kind == "no rename" ? std::optional(FileCall::Rename)
                                 : std::nullopt;
}

/// A folder with the target of a save, and one for what is put aside.
struct Place {
    explicit Place(const std::string& kind) : isNew(kind == "new"), forbidden(forbiddenFor(kind)) {
        setVariable(userDataVariable, folder.path().string());
        fs::create_directory(folder.path() / "here");
        if (!isNew) {
            folder.write("here/ship.shp", oldContents);
        }
        if (kind == "linked") {
            folder.write("there/ship.shp", oldContents);
            fs::remove(target);
            fs::create_symlink("../there/ship.shp", target);
        }
        if (kind == "hard link") {
            fs::create_hard_link(target, folder.path() / "twin");
        }
    }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;
    ~Place() { unsetVariable(userDataVariable); }

    std::string contents() const { return folder.read("here/ship.shp"); }
    bool isAsBefore() const { return isNew ? !fs::exists(target) : contents() == oldContents; }
    bool isSaved() const { return contents() == newContents; }
    /// What was put aside, which is the user's alone.
    std::string copy() const {
        const std::string name = "FleetWright/recovered/ship as it was.shp";
        std::string contents = folder.read(name);
        EXPECT_TRUE(contents.empty() || isUsersAlone(folder.path() / name));
        return contents;
    }

    /// How many files there are that are no target.
    int leftovers() const {
        int count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
            const std::string name = entry.path().filename().string();
            count += name.ends_with(".tmp") || name.find(" as it was") != std::string::npos ? 1 : 0;
        }
        return count;
    }

    const TemporaryFolder folder;
    const fs::path target = folder.path() / "here/ship.shp";
    const bool isNew;
    const std::optional<FileCall> forbidden;  ///< what the folder does not let the save do
};

/// The fault of a save, if it has one; `calls` is how many it has made.
std::string faultOfSave(const Place& place, int nth, FileFaults::Kind kind, int& calls) {
    FileFaults faults(nth, kind);
    if (place.forbidden) {
        faults.forbid(*place.forbidden, place.target.parent_path());
    }
    std::string fault;
    try {
        saveFile(place.target, newContents);
    } catch (const FileError& error) {
        EXPECT_EQ(error.file(), place.target);
        fault = error.what();
    }
    calls = faults.calls();
    return fault;
}

/// What has become of a save, in a word. Holds it against what saves promise.
std::string outcome(const Place& place, FileFaults::Kind kind, const std::string& fault) {
    const bool isKilled = kind == FileFaults::Kind::IsLast;
    if (fault.empty()) {
        EXPECT_TRUE(place.isSaved()) << "it says that it is saved";
        EXPECT_TRUE(isKilled || place.forbidden || place.leftovers() == 0);
        return place.leftovers() == 0 ? "saved" : "saved, something left";
    }
    if (!place.isAsBefore() && !place.isSaved()) {
        EXPECT_TRUE(place.forbidden && place.copy() == oldContents) << "something is lost";
        EXPECT_NE(fault.find("ship as it was.shp"), std::string::npos) << fault;
        return "torn, old contents put aside";
    }
    EXPECT_TRUE(isKilled || place.leftovers() == 0);
    return std::string(place.isSaved() ? "new contents, said not to be sure" : "as before") +
           (place.leftovers() == 0 ? "" : ", something left");
}

}  // namespace

TEST(SaveFaults, LoseNothingWhicheverCallFailsOrIsTheLast) {
    using Kind = FileFaults::Kind;
    for (const char* const target :
         {"new", "replaced", "linked", "hard link", "no new file", "no rename"}) {
        if (std::string(target) == "linked" && !canMakeLinks) {
            continue;
        }
        std::map<std::string, int> outcomes;
        for (const Kind kind : {Kind::Fails, Kind::IsLast}) {
            int calls = 0;
            for (int nth = 1; calls >= nth - 1; ++nth) {
                SCOPED_TRACE(std::string(target) + ", call " + std::to_string(nth) +
                             (kind == Kind::IsLast ? " is the last" : " fails"));
                const Place place(target);
                const std::string fault = faultOfSave(place, nth, kind, calls);
                if (nth <= calls) {
                    ++outcomes[(kind == Kind::IsLast ? "last: " : "fails: ") +
                               outcome(place, kind, fault)];
                }
                EXPECT_EQ(fs::is_symlink(place.target), std::string(target) == "linked");
                EXPECT_TRUE(std::string(target) != "hard link" ||
                            place.folder.read("twin") == oldContents);
                // The next start.
                for (const char* const left : {"here", "there", "FleetWright/recovered"}) {
                    TemporaryFile::takeLeftOnesAway(place.folder.path() / left);
                }
                EXPECT_EQ(place.leftovers(), place.copy().empty() ? 0 : 1);
            }
        }
        for (const auto& [what, count] : outcomes) {
            RecordProperty(std::string(target) + ", " + what, count);
        }
        const bool isReplaced = !forbiddenFor(target);
        EXPECT_EQ(outcomes["fails: new contents, said not to be sure"], isReplaced ? 1 : 0)
            << "the folder's sync";
        EXPECT_TRUE(outcomes["fails: saved"] == 2 || !isReplaced) << "looking for leftovers, lock";
    }
}
