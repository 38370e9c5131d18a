#include "PictureCheck.h"

#include "QtPictureFiles.h"

#include "TemporaryFolder.h"
#include "renderedSets.h"
#include "runCommand.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace fleetwright {
namespace {

constexpr const char* catalogue = "# two systems\r\n"
                                  "CATEGORY,0,0,BEAM,GUNS,O,cat-pulse-cannons.gif\r\n"
                                  "Gun,1,1,BEAM,GUNS,F,Maw-F.gif\r\n"
                                  "Shield,1,1,BEAM,GUNS,F,armor-plate.gif\r\n";

class PictureCheckTest : public testing::Test {
protected:
    void writeAllSystems() const {
        for (const char* name : {"cat-pulse-cannons.gif", "maw-f.gif", "armor-plate.gif"}) {
            m_folder.write(name, renderedCatalogue().at(name));
        }
    }

    void writeAllOfSheets() const {
        for (const auto& [name, bytes] : renderedSheet()) {
            m_folder.write(name, bytes);
        }
    }

    /// What a look at the whole folder brings up, a text for each fault.
    std::vector<std::string> rest() const {
        PictureCheck check(m_folder.path(), m_pictures);
        check.checkCatalogue(catalogue);
        std::vector<std::string> faults;
        for (const PictureFault& fault : check.checkRest()) {
            faults.push_back(fault.file.filename().string() + ": " + fault.fault.text);
        }
        return faults;
    }

    TemporaryFolder m_folder;
    mutable QtPictureFiles m_pictures;
};

TEST_F(PictureCheckTest, NamesTheLineOfAPictureThatIsMissingOrFaulty) {
    writeAllSystems();
    const std::string& whole = renderedCatalogue().at("maw-f.gif");
    m_folder.write("maw-f.gif", whole.substr(0, whole.size() / 2));
    std::filesystem::remove(m_folder.path() / "cat-pulse-cannons.gif");
    m_folder.write("armor-plate.gif", renderedSheet().at("cap3.gif"));
    const std::vector<Fault> expected = {
        {2, "picture \"cat-pulse-cannons.gif\" is missing"},
        {3, "picture \"Maw-F.gif\" cannot be read"},
        {4, "picture \"armor-plate.gif\" is 144 by 54 pixels, not 32 by 32"}};
    EXPECT_EQ(PictureCheck(m_folder.path(), m_pictures).checkCatalogue(catalogue), expected);
}

TEST_F(PictureCheckTest, FindsFoldersInsideAndAtTheStartWhatHasNone) {
    m_folder.write("guns/Maw-F.gif", renderedCatalogue().at("maw-f.gif"));
    const std::string text = "Gun,1,1,BEAM,GUNS,F,guns/maw-f.gif\nBare,1,1,BEAM,GUNS,F,\n";
    EXPECT_EQ(PictureCheck(m_folder.path(), m_pictures).checkCatalogue(text), std::vector<Fault>());
    EXPECT_EQ(PictureCheck(m_folder.path(), m_pictures, PictureCheck::Start).checkCatalogue(text),
              (std::vector<Fault>{{2, "no picture"}}));
}

TEST_F(PictureCheckTest, NamesWhatSheetsMissAndWhatNothingUses) {
    writeAllSystems();
    writeAllOfSheets();
    std::filesystem::remove(m_folder.path() / "escort4.gif");
    m_folder.write("thrust3.gif", "no picture");
    m_folder.write("holiday.jpg", "whatever");
    m_folder.write("notes.txt", "no picture and none of our business");
    const std::vector<std::string> expected = {"escort4.gif: is missing; sheets need it",
                                               "thrust3.gif: cannot be read",
                                               "holiday.jpg: nothing uses this picture"};
    std::vector<std::string> found = rest();
    ASSERT_EQ(found.size(), expected.size());
    for (const std::string& fault : expected) {
        EXPECT_NE(std::find(found.begin(), found.end(), fault), found.end()) << fault;
    }
}

TEST_F(PictureCheckTest, TheCommandSaysItAllWithFileAndLine) {
    const std::string app = m_folder.path().string();
    std::filesystem::copy_file(CATALOGUE_FILE, m_folder.path() / "weaps.dat");
    std::filesystem::copy_file(ARCHIVE, m_folder.path() / "images.exe");
    const std::string check = CLI " check --app " + app;
    const CommandResult before = runCommand(check);
    EXPECT_EQ(before.status, 0);
    EXPECT_NE(before.output.find("images: not unpacked yet"), std::string::npos) << before.output;

    ASSERT_EQ(runCommand(CLI " unpack --app " + app).status, 0);
    EXPECT_EQ(runCommand(check).output, "");

    std::filesystem::remove(m_folder.path() / "images" / "cat-pulse-cannons.gif");
    m_folder.write("images/stray.gif", "x");
    const CommandResult result = runCommand(check);
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find(": picture \"cat-pulse-cannons.gif\" is missing\n"),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("images/stray.gif: nothing uses this picture\n"),
              std::string::npos);
}

}  // namespace
}  // namespace fleetwright
