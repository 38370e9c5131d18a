// What files are on this kind of system: their attributes, their names, and that others may have
// them open.

#include "saveFile.h"

#include "Error.h"
#include "FileLock.h"
#include "TemporaryFolder.h"
#include "paths.h"
#include "readFile.h"
#include "testSystem.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// A file that another program has open.
class HeldFile {
public:
    HeldFile(const fs::path& file, DWORD sharing)
        : m_handle(CreateFileW(file.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                               FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile() { CloseHandle(m_handle); }

private:
    HANDLE m_handle;
};

/// What the user is told of a save that fails; empty if it does not.
std::string faultOf(const fs::path& file) {
    try {
        saveFile(file, "new");
    } catch (const FileError& error) {
        return error.what();
    }
    return {};
}

}  // namespace

TEST(WindowsFiles, AreSavedOrNotAsOthersShareThem) {
    const TemporaryFolder folder;
    setVariable(userDataVariable, (folder.path() / "home").string());
    const fs::path file = folder.write("ship.shp", "old");
    {
        const HeldFile held(file, 0);
        try {
            readBytes(file);
            ADD_FAILURE();
        } catch (const FileError& error) {
            EXPECT_EQ(error.what(), std::string("cannot be read: another program has it open"));
        }
    }
    {
        const HeldFile held(file, FILE_SHARE_READ);
        EXPECT_EQ(faultOf(file), "cannot be saved: another program has it open");
        EXPECT_EQ(folder.read("ship.shp"), "old");
    }
    {
        // It lets the file be written to, but not be replaced.
        const HeldFile held(file, FILE_SHARE_READ | FILE_SHARE_WRITE);
        EXPECT_EQ(faultOf(file), "");
        EXPECT_EQ(folder.read("ship.shp"), "new");
    }
    {
        const HeldFile held(folder.write("ship.shp", "old"),
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
        EXPECT_EQ(faultOf(file), "");
        EXPECT_EQ(folder.read("ship.shp"), "new");
    }
    EXPECT_EQ(listFolder(folder.path(), ""), std::vector<fs::path>{file});  // no way there is left
    unsetVariable(userDataVariable);
}

TEST(WindowsFiles, KeepTheirAttributes) {
    const TemporaryFolder folder;
    const fs::path file = folder.write("ship.shp", "old");
    for (const DWORD attributes :
         {DWORD{FILE_ATTRIBUTE_HIDDEN}, DWORD{FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY}}) {
        SetFileAttributesW(file.c_str(), attributes);
        const bool isReadOnly = (attributes & FILE_ATTRIBUTE_READONLY) != 0;
        EXPECT_EQ(faultOf(file), isReadOnly ? "cannot be saved: Permission denied" : "");
        EXPECT_EQ(GetFileAttributesW(file.c_str()) & ~DWORD{FILE_ATTRIBUTE_ARCHIVE}, attributes);
    }
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);  // so that it can be taken away
}

TEST(WindowsFiles, HaveAnyNameInAnyDepth) {
    const TemporaryFolder folder;
    std::string deep = pathText(folder.path());
    while (deep.size() < 400) {
        deep += deep.size() % 2 == 0 ? "/Sternenflotte \u8266\u968A "
                                     : "\\\u0424\u043B\u043E\u0442\U0001F680";
        deep += std::to_string(deep.size());
    }
    makeFolder(nativePath(deep));
    const fs::path file = fileBelow(
        folder.path(), (deep + "/Sh\u00EFp.shp").substr(pathText(folder.path()).size() + 1));
    saveFile(file, "first");
    saveFile(file, "second");
    EXPECT_EQ(readBytes(nativePath(deep + "\\sh\u00EFP.SHP")), "second");
    EXPECT_TRUE(FileLock(file).isHeld());
    EXPECT_EQ(listFolder(nativePath(deep), ".shp"), std::vector<fs::path>{file});
    EXPECT_EQ(filesBelow(folder.path()).size(), 1U);
    EXPECT_TRUE(file.is_absolute() && file.has_root_name());
}
