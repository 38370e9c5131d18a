#include "CatalogueCheck.h"

#include "faults.h"
#include "files.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// A catalogue without a fault, to which a test adds one.
const std::string sound = "CATEGORY,0,0,beam,Guns,O,guns.gif\n"
                          "Gun,amount,amount,BEAM,GUNS,FPSAB,gun.gif\n"
                          "a,1,1,x,DEFENSE,6,a.gif\nb,1,1,x,HEAVY,O,b.gif\n"
                          "c,1,1,x,HANGAR,OX,c.gif\nd,1,1,x,ALIEN,F,d.gif\n"
                          "Cloaking Field,1,1,x,SPECIAL,O,e.gif\n"
                          "Damage Control Party,1,1,x,systems,O,f.gif\n";

std::string faultsWith(const std::string& lines) {
    return textOf(checkCatalogue(sound + lines));
}

}  // namespace

TEST(CatalogueCheck, FindsNothingInASoundCatalogue) {
    EXPECT_EQ(faultsWith(""), "");
    EXPECT_TRUE(checkCatalogue(readTextFile(SOURCE_FOLDER "/data/weaps.dat")).empty());
}

TEST(CatalogueCheck, NamesEachFaultWithItsLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"a,b,c,d,e,f", "9: too few fields: 6 of seven\n"},
        {"Gun,1,1,BEAM,GUNS,F,g.gif", "9: double key \"Gun\": also in line 2\n"},
        {"CATEGORY,0,0,BEAM,guns,O,h.gif\nx,1,1,x,GUNS,F,x.gif",
         "9: double key \"GUNS\": also in line 1\n"},
        {"HEAVY,1,1,BEAM,GUNS,F,g.gif",
         "9: system \"HEAVY\" has the name of a root word or of BLANK\n"},
        {"BLANK,1,1,BEAM,GUNS,F,g.gif",
         "9: system \"BLANK\" has the name of a root word or of BLANK\n"},
        {"x,1,1,BEAM,CANNON,F,g.gif",
         "9: unknown parent \"CANNON\": no root word, and no category above\n"},
        {"x,1,1,BEAM,GUN,F,g.gif",
         "9: unknown parent \"GUN\": no root word, and no category above\n"},
        {"x,1,1,BEAM,BLANK,F,g.gif",
         "9: unknown parent \"BLANK\": no root word, and no category above\n"},
        {"CATEGORY,0,0,BEAM,NEW,O,n.gif", "9: nothing stands under \"NEW\"\n"},
        {"x,1 +,foo,BEAM,GUNS,F,g.gif",
         "9: mass formula, column 4: a number, a name or ( is expected here, not the end\n"
         "9: cost formula, column 1: unknown name \"foo\"\n"},
        {"a:b,1,1,BEAM,GUNS,F,g.gif",
         "9: name \"a:b\" holds a colon, at which ship files are cut\n"},
        {" x,1,1,BEAM,GUNS,F,g.gif",
         "9: name \" x\" has blanks at its ends, which ship files lose\n"},
        {",1,1,BEAM,GUNS,F,g.gif", "9: system without a name\n"},
        {"x,1,1,BEAM,GUNS,FX,g.gif", "9: unknown arc letter \"X\"\n"},
        {"x,1,1,BEAM,GUNS,,g.gif", "9: no arc letters\n"},
        {"x,1,1,BEAM,GUNS,F,", "9: no picture\n"},
    };
    for (const auto& [lines, expected] : cases) {
        EXPECT_EQ(faultsWith(lines), expected) << lines;
    }
}

TEST(CatalogueCheck, ForTheStartNamesOnlyWhatTheProgramCannotLiveWith) {
    const std::vector<Fault> faults = checkCatalogue(
        std::string("CATEGORY,0,0,BEAM,EMPTY,O,e.gif\na:b,1,1,x,BEAM,X,\n c ,1,1,x,BEAM,,g.gif\n"
                    "d,1,foo,x,BEAM,F,d.gif\nd,1,1,x,BEAM,F,d.gif\ne,1,1,x,NOWHERE,F,e.gif\n"),
        CatalogueCheck::Start);
    ASSERT_EQ(faults.size(), 3U);
    EXPECT_EQ(faults[0], (Fault{4, "cost formula, column 1: unknown name \"foo\""}));
    EXPECT_EQ(faults[1], (Fault{5, "double key \"d\": also in line 4"}));
    EXPECT_EQ(faults[2].line, 6);
    EXPECT_TRUE(
        checkCatalogue(std::string("Gun,1,BEAM,1,BEAM,F\n"), CatalogueCheck::Start).size() == 1);
}

TEST(CatalogueCheck, NamesWhatIsMissingAltogether) {
    const std::vector<Fault> faults = checkCatalogue(std::string("x,1,1,x,BEAM,F,x.gif"));
    ASSERT_EQ(faults.size(), 8U);
    EXPECT_EQ(faults[0], (Fault{0, "nothing stands under \"ALIEN\""}));
    EXPECT_EQ(faults[6], (Fault{0, "no system \"Cloaking Field\""}));
    EXPECT_EQ(faults[7], (Fault{0, "no system \"Damage Control Party\""}));
}
