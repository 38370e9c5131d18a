#include "fileCalls.h"

#include "Error.h"
#include "FileFaults.h"
#include "TemporaryFolder.h"
#include "paths.h"
#include "readFile.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace fleetwright;
namespace fs = std::filesystem;

TEST(FileCalls, SyncWhatIsForGoodAndFailAsTheyAreTold) {
    const TemporaryFolder folder;
    const fs::path a = folder.path() / "a", b = folder.path() / "b", sub = folder.path() / "sub";
    folder.write("a", "a");
    folder.write("b", "b");
    using enum FileCall;
    const struct {
        std::function<std::error_code()> call;
        std::vector<FileCall> calls;
        std::string after;
    } cases[] = {
        {[&] { return renameToNew(a, b); }, {Rename}, "File exists"},
        {[&] { return renameForGood(a, b); }, {Rename, SyncFolder}, ""},
        {[&] { return makeNewFolder(sub); }, {MakeFolder}, ""},
        {[&] { return makeNewFolder(sub); }, {MakeFolder}, "File exists"},
        {[&] { return renameToNew(b, sub / "b"); }, {Rename, SyncFolder, SyncFolder}, ""},
        {[&] { return renameForGood(sub / "b", a); }, {Rename, SyncFolder, SyncFolder}, ""},
        {[&] { return makeTwin(a, sub / "twin"); }, {MakeLink}, ""},
        {[&] { return removeForGood(a); }, {Remove, SyncFolder}, ""},
        {[&] { return removeForGood(a); }, {Remove, SyncFolder}, ""},
        {[&] { return removeTree(sub); }, {RemoveTree}, ""},
        {[&] { return makeNewPrivateFolder(b); }, {MakeFolder}, ""},
        {[&] { return makeNewPrivateFolder(b); }, {MakeFolder}, "File exists"},
        {[&] { return setFolderMode(b, fs::perms(0500)); }, {SetMode}, ""},
        {[&] { return removeTree(b); }, {RemoveTree}, ""},
        {[&] { return makeFolder(sub / "sub"), std::error_code(); },
         {MakeFolder, SyncFolder, MakeFolder, SyncFolder},
         ""},
    };
    for (const auto& each : cases) {
        std::vector<FileCall> calls;
        hookFileCalls([&calls](FileCall call, const fs::path&) {
            calls.push_back(call);
            return std::error_code();
        });
        const std::error_code error = each.call();
        hookFileCalls({});
        EXPECT_EQ(error ? error.message() : "", each.after) << &each - cases;
        EXPECT_EQ(calls, each.calls) << &each - cases;
    }
    EXPECT_TRUE(fs::is_directory(sub / "sub") && folder.entries() == 1);
}

TEST(FileCalls, ThatFailKeepAFileFromBeingRead) {
    for (const int nth : {1, 2}) {  // opening it, its bytes
        const FileFaults faults(nth);
        EXPECT_THROW(readBytes(SOURCE_FOLDER "/LICENSE"), FileError) << nth;
    }
    EXPECT_THROW(listFolder(SOURCE_FOLDER "/LICENSE", ""), FileError);
    EXPECT_EQ(executableFolder("").filename(), "bin");
}
