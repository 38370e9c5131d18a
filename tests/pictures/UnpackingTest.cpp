// How new pictures come in the place of old ones, and what is said of the pictures of a catalogue.

#include "CatalogueFile.h"
#include "FileFaults.h"
#include "PictureCheck.h"
#include "QtPictureFiles.h"
#include "SheetPictures.h"
#include "TemporaryFolder.h"
#include "checkPicturesAtStart.h"
#include "faults.h"
#include "readFile.h"
#include "testSystem.h"
#include "unpackImages.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace fleetwright;
namespace fs = std::filesystem;

/// Unpacks new pictures over old ones, with a file of the user's among them that comes at the last
/// moment. One call fails, or is the last one; false if there was none of that number.
bool unpackWithFault(const fs::path& pictures, int nth, FileFaults::Kind kind, bool canExchange) {
    const TemporaryFolder app;
    const auto archive = [&](const char* version) {
        return [&, version](const fs::path&, const fs::path& folder) {
            for (const fs::directory_entry& picture : fs::directory_iterator(pictures / version)) {
                fs::create_hard_link(picture, folder / picture.path().filename());
            }
            return true;
        };
    };
    const fs::path programFolder = pictures;
    renewImages(app.path(), programFolder, archive("old"));
    app.write("images/mine.txt", "mine");
    app.write("images/guns/mine.gif", "mine");
    if (canMakeLinks) {
        fs::create_symlink("mine.txt", app.path() / "images/link");
    } else {
        app.write("images/link", "mine");
    }
    int calls = 0;
    bool isReplaced = false;
    hookFileCalls([&](FileCall call, const fs::path& path) {
        ++calls;
        const bool isExchange = call == FileCall::Exchange;
        if (isExchange || (!canExchange && !isReplaced && path == app.path() / "images.replaced")) {
            app.write("images/late.txt", "late");
            isReplaced = !isExchange;
        }
        const bool fails = kind == FileFaults::Kind::Fails ? calls == nth : calls >= nth;
        return fails ? std::make_error_code(std::errc::io_error)
               : isExchange && !canExchange
                   ? std::make_error_code(std::errc::function_not_supported)
                   : std::error_code();
    });
    const std::string fault =
        fileFaultOf([&] { renewImages(app.path(), programFolder, archive("new")); });
    hookFileCalls({});
    // The next start makes good what is left, and needs no archive for it.
    unpackImages(app.path(), "none", {});
    const std::string version = app.read("images/ftl.gif");
    for (const std::string& name : sheetPictures()) {
        EXPECT_EQ(app.read("images/" + name), version) << name;
    }
    for (const char* const name : {"mine.txt", "link", "guns/mine.gif"}) {
        EXPECT_EQ(app.read(std::string("images/") + name), "mine") << name;
    }
    EXPECT_TRUE(!fault.empty() || (version == "new" && app.read("images/late.txt") == "late"));
    EXPECT_EQ(app.entries(), 1);
    return calls >= nth;
}

TEST(Unpacking, LeavesTheOldPicturesWholeOrTheNewOnesWhateverFails) {
    const TemporaryFolder pictures;
    pictures.write("images.exe", "archive");
    for (const std::string version : {"old", "new"}) {
        for (const std::string& name : sheetPictures()) {
            pictures.write(std::string(version).append("/").append(name), version);
        }
    }
    for (const auto kind : {FileFaults::Kind::Fails, FileFaults::Kind::IsLast}) {
        for (const bool canExchange : {true, false}) {
            int nth = 0;
            while (unpackWithFault(pictures.path(), ++nth, kind, canExchange)) {
                EXPECT_FALSE(HasFailure()) << "at call " << nth;
            }
            EXPECT_GT(nth, 20);
        }
    }
}

TEST(PictureCheck, NamesTheLinesWhosePicturesAreMissingOrFaulty) {
    const TemporaryFolder folder;
    const std::string whole = readBytes(PICTURES_FOLDER "/images/maw-f.gif");
    folder.write("maw-f.gif", whole.substr(0, whole.size() / 2));
    folder.write("armor-plate.gif", readBytes(PICTURES_FOLDER "/images/cap3.gif"));
    folder.write("guns/Maw-F.gif", whole);
    const std::string catalogue = "# systems\r\n"
                                  "CATEGORY,0,0,BEAM,GUNS,O,cat-pulse-cannons.gif\r\n"
                                  "Gun,1,1,BEAM,GUNS,F,Maw-F.gif\r\n"
                                  "Shield,1,1,BEAM,GUNS,F,armor-plate.gif\r\n"
                                  "Inside,1,1,BEAM,GUNS,F,guns/maw-f.gif\r\n"
                                  "Bare,1,1,BEAM,GUNS,F,\r\n";
    const std::string missing = "2: picture \"cat-pulse-cannons.gif\" is missing\n";
    const std::string large = "4: picture \"armor-plate.gif\" is 210 by 74 pixels, not 32 by 32\n";
    QtPictureFiles pictures;
    const auto faults = [&](PictureCheck::Depth depth) {
        return textOf(PictureCheck(folder.path(), pictures, depth).checkCatalogue(catalogue));
    };
    const std::string cut = "3: picture \"Maw-F.gif\" is cut short\n";
    EXPECT_EQ(faults(PictureCheck::All), missing + cut + large);
    EXPECT_EQ(faults(PictureCheck::Start), missing + cut + large + "6: no picture\n");
}

TEST(PicturesAtStart, AreDecodedOnceUntilOneOfThemIsAnother) {
    const TemporaryFolder folder;
    const std::string whole = readBytes(PICTURES_FOLDER "/images/maw-f.gif");
    const fs::path picture = folder.path() / "images/gun.gif";
    const auto write = [&](const std::string& bytes, std::chrono::hours age) {
        folder.write("images/gun.gif", bytes);
        fs::last_write_time(picture, fs::file_time_type::clock::now() - age);
    };
    class Counting : public PictureFiles {
    public:
        Raster load(const fs::path& file) override {
            ++count;
            return QtPictureFiles().load(file);
        }
        Raster builtIn(const std::string&) override { return {}; }
        int count = 0;
    };
    const auto start = [&](const std::string& catalogue) {
        Counting files;
        const fs::path memory = folder.path() / "cache/pictures";
        const std::string faults =
            textOf(checkPicturesAtStart(catalogue, picture.parent_path(), files, memory));
        return faults + std::to_string(files.count);
    };
    const std::string gun = "Gun,1,1,BEAM,GUNS,F,gun.gif\r\n";
    write(whole, std::chrono::hours(1));
    EXPECT_EQ(start(gun), "1");
    EXPECT_EQ(start(gun), "0");
    EXPECT_EQ(start(gun + gun), "2");
    EXPECT_EQ(start(gun), "1");
    std::string damaged = whole;
    damaged.back() = ' ';
    write(damaged, std::chrono::hours(1));
    for (int i = 0; i < 2; ++i) {  // what is not well is not remembered
        EXPECT_EQ(start(gun), "1: picture \"gun.gif\" is cut short\n1");
    }
    write(whole, std::chrono::hours(0));
    for (int i = 0; i < 2; ++i) {  // nor what may still change without a trace
        EXPECT_EQ(start(gun), "1");
    }
}
