#include "PictureCheck.h"

#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "faults.h"
#include "files.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

std::string delivered(const std::string& name) {
    return readBytes(PICTURES_FOLDER "/images/" + name);
}

}  // namespace

TEST(PictureCheck, NamesTheLinesWhosePicturesAreMissingOrFaulty) {
    const TemporaryFolder folder;
    const std::string whole = delivered("maw-f.gif");
    folder.write("maw-f.gif", whole.substr(0, whole.size() / 2));
    folder.write("armor-plate.gif", delivered("cap3.gif"));
    folder.write("guns/Maw-F.gif", whole);
    const std::string catalogue = "# systems\r\n"
                                  "CATEGORY,0,0,BEAM,GUNS,O,cat-pulse-cannons.gif\r\n"
                                  "Gun,1,1,BEAM,GUNS,F,Maw-F.gif\r\n"
                                  "Shield,1,1,BEAM,GUNS,F,armor-plate.gif\r\n"
                                  "Inside,1,1,BEAM,GUNS,F,guns/maw-f.gif\r\n"
                                  "Bare,1,1,BEAM,GUNS,F,\r\n";
    const std::string missing = "2: picture \"cat-pulse-cannons.gif\" is missing\n";
    const std::string large = "4: picture \"armor-plate.gif\" is 144 by 54 pixels, not 32 by 32\n";
    QtPictureFiles pictures;
    const auto faults = [&](PictureCheck::Depth depth) {
        return textOf(PictureCheck(folder.path(), pictures, depth).checkCatalogue(catalogue));
    };
    EXPECT_EQ(faults(PictureCheck::All),
              missing + "3: picture \"Maw-F.gif\" cannot be read\n" + large);
    // Decoders show what there is of a picture that was cut short, so the program can start.
    EXPECT_EQ(faults(PictureCheck::Start), missing + large + "6: no picture\n");
}
