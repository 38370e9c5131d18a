// What a program is told of its user and of itself on this kind of system, and what it does
// without.

#include "Error.h"
#include "FileFaults.h"
#include "TemporaryFolder.h"
#include "paths.h"
#include "saveFile.h"
#include "testSystem.h"

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

using namespace fleetwright;
namespace fs = std::filesystem;

TEST(PosixUser, WhoHasNoHomeSavesAndTidiesAllTheSame) {
    if (getuid() != 0) {
        GTEST_SKIP() << "only root can be somebody whom the system does not know";
    }
    constexpr uid_t stranger = 54321;
    const TemporaryFolder folder;
    fs::permissions(folder.path(), fs::perms::all);
    fs::permissions(folder.write(".fleetwright-a.tmp", "cut"), fs::perms(0666));
    int status = -1;
    const pid_t child = fork();
    if (child == 0) {
        unsetVariable("HOME");
        unsetVariable(userDataVariable);
        const bool isStranger = setgid(stranger) == 0 && setuid(stranger) == 0;
        try {
            saveFile(folder.path() / "ship.shp", "ship");
            _exit(isStranger ? 0 : 1);
        } catch (const FileError&) {
            _exit(2);
        }
    }
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(folder.entries(), 1);
}

TEST(PosixUser, TheProgramIsWhereItsWordSaysIfTheSystemDoesNotKnow) {
    const FileFaults faults(1, FileFaults::Kind::IsLast);
    EXPECT_EQ(executableFolder("/opt/fleets/tool"), "/opt/fleets");
    EXPECT_EQ(executableFolder("bin/tool"), fs::current_path() / "bin");
    try {
        executableFolder("tool");  // found along the path, and not here
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(complaint(error), "tool: the folder of the program cannot be found");
    }
}
