#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "runTool.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// A folder with a small catalogue and three ships: one sound, one that passes systems over, and
/// one that does not load.
class Tool : public testing::Test {
protected:
    Tool() {
        m_folder.write("weaps.dat", "Gun,2 * amount,6 * amount,BEAM,BEAM,FPS,gun.gif\r\n"
                                    "Cloaking Field,1,mass,SPECIAL,SPECIAL,O,cloak.gif\r\n");
        m_folder.write("good.shp", "Ship Name: \"Né\"\nMass: 50\nThrust: 4\nSystem: Gun, 3\n");
        m_folder.write("part.shp", "Type: Merchant\nSystem: Laser, 1\nSystem: Cloaking Field, 1\n"
                                   "System: Gun, 2\n");
        m_folder.write("bad.shp", "Mass: 10\nThrust: fast\n");
    }

    ToolRun run(std::vector<std::string> arguments) const {
        return runTool(m_folder.path().string(), std::move(arguments));
    }

    TemporaryFolder m_folder;
};

/// "status|output|errors"
std::string all(const ToolRun& run) {
    return std::to_string(run.status) + '|' + run.output + '|' + run.errors;
}

const std::string goodFigures =
    R"({"file":"good.shp","shipName":"\"Né\"","designer":"Nils's Iron Vector Creator","hull":1,)"
    R"("mass":50,"thrust":4,"ftl":1,"armor":0,"streamline":0,"cost":368,"dp":25,"damRows":4,)"
    R"("dcp":3,"fcs":3,"massLeft":19,"class":"Capital","relSize":"BattleDreadnought",)"
    R"("systems":[{"name":"Gun","amount":3,"mass":6,"cost":18}],"refused":[]})"
    "\n";
const std::string partFigures =
    R"({"file":"part.shp","shipName":"Generic","designer":"Nils's Iron Vector Creator","hull":2,)"
    R"("mass":2,"thrust":2,"ftl":1,"armor":0,"streamline":0,"cost":11,"dp":1,"damRows":2,)"
    R"("dcp":0,"fcs":1,"massLeft":0,"class":"Escort","relSize":"Courier",)"
    R"("systems":[{"name":"Cloaking Field","amount":1,"mass":1,"cost":2}],)"
    R"("refused":["System: Laser, 1","System: Gun, 2"]})"
    "\n";
const std::string badComplaint = "bad.shp:2: \"fast\" is no number\n";

}  // namespace

TEST_F(Tool, FiguresAreOneObjectALineInTheOrderOfTheFiles) {
    EXPECT_EQ(all(run({"--app", ".", "figures", "good.shp", "bad.shp", "none.shp", "part.shp"})),
              "1|" + goodFigures + partFigures + "|" + badComplaint +
                  "none.shp: cannot be read: No such file or directory\n");
    EXPECT_EQ(all(run({"figures", "part.shp", "--app=.", "--", "good.shp"})),
              "0|" + partFigures + goodFigures + "|");
    EXPECT_EQ(all(run({"figures", "part.shp", "--app", ".", "good.shp"})),
              "0|" + partFigures + goodFigures + "|");
    EXPECT_EQ(all(run({"--app", ".", "figures", "--", "--auto-mass"})),
              "1||--auto-mass: cannot be read: No such file or directory\n");
    const ToolRun fitted = run({"figures", "--auto-mass", "good.shp", "--app", "."});
    EXPECT_NE(fitted.output.find(R"("mass":12,)"), std::string::npos) << fitted.output;
    EXPECT_NE(fitted.output.find(R"("massLeft":0,)"), std::string::npos) << fitted.output;
}

TEST_F(Tool, FiguresStayReadableForAnyFileName) {
    m_folder.write("\xFF\n.shp", "Ship Name: a\tb\\\n");
    m_folder.write("[a,b].shp", "");
    EXPECT_EQ(run({"--app", ".", "figures", "[a,b].shp"}).status, 0);
    const ToolRun odd = run({"--app", ".", "figures", "\xFF\n.shp"});
    EXPECT_EQ(odd.output.substr(0, 44),
              "{\"file\":\"\uFFFD\\n.shp\",\"shipName\":\"a\\tb\\\\\",\"des");
}

TEST_F(Tool, ComplaintsShowNoControlCharacters) {
    using namespace std::string_literals;
    m_folder.write("odd.shp", "Type\x1B[2J: Merchant\nSystem: A\0b, 1\nMass: 5\0\n"s);
    const ToolRun odd = run({"--app", ".", "check", "odd.shp"});
    EXPECT_EQ(odd.output, "odd.shp:1: nobody reads the key \"Type\uFFFD[2J\"\n"
                          "odd.shp:2: unknown system \"A\uFFFDb\"\n"
                          "odd.shp:3: \"5\uFFFD\" is no number\n");
}

TEST_F(Tool, ReportsFollowEachOther) {
    const ToolRun reports = run({"--app", ".", "report", "good.shp", "part.shp", "bad.shp"});
    EXPECT_EQ(reports.status, 1);
    EXPECT_EQ(reports.errors,
              "part.shp:2: unknown system \"Laser\"\n"
              "part.shp:4: a merchant hull cannot have a cloak and other systems\n" +
                  badComplaint);
    const std::string good = run({"--app", ".", "report", "good.shp"}).output;
    EXPECT_NE(good.find("\nCost: 368\n"), std::string::npos);
    EXPECT_TRUE(good.ends_with("\n    3\tGun\n"));
    EXPECT_EQ(reports.output, good + run({"--app", ".", "report", "part.shp"}).output);
}

TEST_F(Tool, SaveWritesOneFileAndNamesWhatWasLost) {
    EXPECT_EQ(all(run({"--app", ".", "save", "good.shp", "out"})), "0||");
    EXPECT_EQ(m_folder.read("out.shp"), "Ship Name: \"Né\"\r\n"
                                        "Designer Name: Nils's Iron Vector Creator\r\n"
                                        "Mass: 50\r\nThrust: 4\r\nType: Warship\r\n"
                                        "FTL: Normal\r\nSystem: Gun, 3\r\n");
    EXPECT_EQ(run({"--app", ".", "save", "part.shp", "part2.shp"}).status, 1);
    EXPECT_EQ(all(run({"--app", ".", "save", "bad.shp", "never"})), "1||" + badComplaint);
    EXPECT_EQ(all(run({"--app", ".", "save", "good.shp", "none/out"})),
              "1||none/out.shp: cannot be saved: No such file or directory\n");
    fs::create_symlink("/dev/full", m_folder.path() / "full.shp");
    EXPECT_EQ(all(run({"--app", ".", "save", "good.shp", "full.shp"})),
              "1||full.shp: cannot be saved: No space left on device\n");
    EXPECT_EQ(m_folder.entries(), 7);
}

TEST_F(Tool, ExplainSaysWhereTheFiguresComeFrom) {
    const ToolRun explained = run({"explain", "--app", ".", "good.shp"});
    EXPECT_TRUE(explained.output.starts_with("\"Né\"\n     100  Warship hull of mass 50\n"));
    EXPECT_TRUE(explained.output.ends_with("      -6  3 x Gun\n      19  = Mass left\n"));
    // No button stands for this thrust, and so the figures are still those of the one before.
    m_folder.write("weaps.dat", "Motor,thrust,thrust * 10,BEAM,BEAM,F,x.gif\n");
    m_folder.write("fast.shp", "System: Motor, 1\nThrust: 12\n");
    EXPECT_EQ(all(run({"explain", "--app", ".", "fast.shp"})),
              "0|Generic\n"
              "       4  Warship hull of mass 2\n"
              "       2  FTL drive: Normal\n"
              "       1  Thrust 2\n"
              "      20  1 x Motor\n"
              "      27  = Cost\n"
              "       1  Warship hull of mass 2\n"
              "       1  = Damage points\n"
              "       1  Free mass of the Warship hull of mass 2\n"
              "      -2  1 x Motor\n"
              "      -1  = Mass left\n|");
}

TEST_F(Tool, EvalWorksOutAFormulaWithItsDefaults) {
    EXPECT_EQ(all(run({"eval", "mass + 10*hull + 100*ftl + 1000*thrust + 10000*hullcost + "
                               "100000*amount"})),
              "0|142112\n|");
    EXPECT_EQ(all(run({"eval", "--mass", "-7", "mass - amount", "--amount=3"})), "0|-10\n|");
    EXPECT_EQ(all(run({"eval", "hull*ftl*thrust*hullcost", "--hull", "3", "--ftl", "3", "--thrust",
                       "5", "--hull-cost", "7"})),
              "0|315\n|");
    EXPECT_EQ(all(run({"eval", "-hull"})), "0|-1\n|") << "which is not -h";
    EXPECT_EQ(all(run({"eval", "--", "--mass"})), "0|2\n|");
    EXPECT_EQ(all(run({"eval", "1/0"})), "0|0\n|");
    EXPECT_EQ(all(run({"eval", "2 +"})),
              "1|0\n|column 4: a number, a name or ( is expected here, not the end\n");
    EXPECT_EQ(run({"eval", ""}).status, 1);
    const int full = std::system(APP_FOLDER "/fleetwright-cli eval 1 >/dev/full 2>/dev/null");
    EXPECT_EQ(WEXITSTATUS(full), 1);
}

TEST_F(Tool, CheckNamesEveryFault) {
    m_folder.write("ok/weaps.dat", "Gun,1,1,BEAM,BEAM,F,x.gif,\nShell,1 +,1,BEAM,ODD,F,x.gif\n");
    m_folder.write("huge.shp", "Mass: 2000000000\n");
    m_folder.write("fast.shp", "Thrust: 40000\n");
    EXPECT_EQ(all(run({"--app", ".", "check", "bad.shp", "huge.shp", "fast.shp", "part.shp",
                       "none.shp", "x.gif"})),
              "1|bad.shp:2: \"fast\" is no number\n"
              "huge.shp: number too large\n"
              "fast.shp:1: thrust 40000 is outside 0 to 8\n"
              "fast.shp: number too large\n"
              "part.shp:2: unknown system \"Laser\"\n"
              "part.shp:4: a merchant hull cannot have a cloak and other systems\n"
              "none.shp: cannot be read: No such file or directory\n"
              "x.gif: neither a catalogue (.dat), a ship file (.shp) nor a map (.map)\n|");
    const ToolRun catalogue = run({"check", "ok/weaps.dat"});
    EXPECT_EQ(catalogue.status, 1);
    EXPECT_EQ(catalogue.output.substr(0, 61),
              "ok/weaps.dat:2: mass formula, column 4: a number, a name or (");
    const ToolRun delivered = run({"check"});
    EXPECT_EQ(delivered.status, 0);
    EXPECT_EQ(delivered.output, "");
    EXPECT_EQ(all(run({"--app", "nowhere", "check"})),
              "1|nowhere/weaps.dat: cannot be read: No such file or directory\n|");
}

TEST_F(Tool, CheckLooksThroughMaps) {
    Raster outline(100, 50);
    outline.pixel(40, 10) = 0xFF0000;
    m_folder.write("shipimages/hull.BMP", QtPictureFiles().encode(outline, "bmp"));
    m_folder.write("shipimages/text.gif", "no picture");
    m_folder.write("maps/b.MAP", "IMAGE: Hull.bmp\nSIZE: 36\nDAMROW: (0,7)\nFTL: 1,2\n"
                                 "WEAP: (1,2,X)\nDCP: (10,1)\nDCP: (70,1)\nWEAP: (68,18,B)\n");
    m_folder.write("maps/a.map", "IMAGE: none.gif\nSIZE: 18\nDAMROW: (1,2)\nFTL: (1,2)\n"
                                 "THRUST: (1)\n");
    m_folder.write("maps/c.map", "IMAGE: text.gif\n");
    EXPECT_EQ(
        all(run({"--app", ".", "check", "maps/b.MAP"})),
        "1|maps/b.MAP:2: 0 FIRECON points, but ships of this SIZE have up to 2 fire controls\n"
        "maps/b.MAP:4: \"\" is no number\n"
        "maps/b.MAP:5: unknown arc \"X\", so that the point is neither used nor covered\n"
        "maps/b.MAP:6: the DCP box at (10,1) overlaps the DAMROW box at (0,7) of line 3\n"
        "maps/b.MAP:7: the DCP box at (70,1) leaves the outline, which is 100 by 50 pixels\n"
        "maps/b.MAP:7: the DCP box at (70,1) overlaps the DAMROW box at (0,7) of line 3\n"
        "maps/b.MAP:8: the WEAP box at (68,18) overlaps the DAMROW box at (0,7) of line 3\n"
        "maps/b.MAP: no THRUST line, so that the thrust drive is drawn at (0,0)\n"
        "maps/b.MAP: no weapon point for the arc F, P, S, A\n|");
    const std::string output = run({"--app", ".", "check"}).output;
    EXPECT_NE(output.find("./maps/a.map:1: there is no outline \"none.gif\"\n"
                          "./maps/a.map:2: 0 FIRECON"),
              std::string::npos)
        << output;
    EXPECT_NE(output.find("./maps/c.map:1: the outline cannot be read: "), std::string::npos);
    m_folder.write("maps/c.map", "IMAGE: hull.bmp\nTHRUST: (0,0)\n");
    EXPECT_NE(run({"--app", ".", "check", "maps/c.map"})
                  .output.find("maps/c.map: the mark at (40,10) is covered by nothing\n"),
              std::string::npos);
}

TEST_F(Tool, MapsAreThoseThatLoadOrThatAShipFitsOn) {
    EXPECT_EQ(all(run({"--app", ".", "maps"})), "0||");
    m_folder.write("maps/roomy.map", "SIZE: 50\nWEAP: (1,2,F)\nWEAP: (1,2,F)\nWEAP: (1,2,F)\n");
    m_folder.write("maps/Light.map", "SIZE: 49\nWEAP: (1,2,F)\nWEAP: (1,2,F)\nWEAP: (1,2,F)\n");
    m_folder.write("maps/few.MAP", "SIZE: 50\nWEAP: (1,2,F)\nWEAP: (1,2,F)\n");
    m_folder.write("maps/broken.map", "SIZE: big\n");
    EXPECT_EQ(all(run({"--app", ".", "maps"})), "0|few\nLight\nroomy\n|");
    EXPECT_EQ(all(run({"maps", "good.shp", "--app", "."})), "0|roomy\n|");
    EXPECT_EQ(all(run({"--app", ".", "maps", "part.shp"})),
              "1|few\nLight\nroomy\n|part.shp:2: unknown system \"Laser\"\n"
              "part.shp:4: a merchant hull cannot have a cloak and other systems\n");
    EXPECT_EQ(all(run({"--app", ".", "maps", "bad.shp"})), "1||" + badComplaint);
    m_folder.write("many.shp", "System: Gun, 32768\n");
    EXPECT_EQ(all(run({"--app", ".", "maps", "many.shp"})), "1||many.shp: number too large\n");
}

TEST_F(Tool, WithoutACatalogueNothingCanBeSaid) {
    EXPECT_EQ(all(run({"--app", "nowhere", "figures", "good.shp"})),
              "1||nowhere/weaps.dat: cannot be read: No such file or directory\n");
}

TEST_F(Tool, WrongCommandLinesSayWhatIsWrong) {
    const std::vector<std::vector<std::string>> wrong = {
        {"nonsense"},
        {"figures"},
        {"report", "good.shp", "--auto-mass"},
        {"figures", "-x", "good.shp"},
        {"save", "good.shp"},
        {"save", "good.shp", "a", "b"},
        {"maps", "good.shp", "part.shp"},
        {"eval"},
        {"eval", "1", "2"},
        {"eval", "1", "--mass"},
        {"eval", "1", "--mass", "2.5"},
        {"eval", "1", "--mass", "0x10"},
        {"eval", "1", "--mass", "2147483648"},
        {"--app"},
        {"--app=", "figures", "good.shp"},
        {"figures", "good.shp", "--mass", "3"},
    };
    for (const auto& arguments : wrong) {
        const ToolRun refused = run(arguments);
        EXPECT_EQ(refused.status, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(refused.output, "") << testing::PrintToString(arguments);
        EXPECT_EQ(refused.errors.substr(0, 17), "fleetwright-cli: ");
    }
    EXPECT_EQ(run({"--help"}).status, 0);
    EXPECT_EQ(run({"--help", "figures"}).output, run({"-h"}).output);
    EXPECT_EQ(all(run({})), "2||fleetwright-cli: no command (see fleetwright-cli --help)\n" +
                                run({"--help"}).output);
    EXPECT_EQ(run({"figures", "-h"}).output, run({"figures", "--help"}).output);
    EXPECT_EQ(all(run({"--version"})), "0|FleetWright 2.0.5\n|");
}

TEST_F(Tool, RecoveredListsDesignsAndWritesOneOut) {
    // The tool sees no environment, so the designs are those of whoever runs the tests.
    EXPECT_EQ(run({"recovered"}).status, 0);
    EXPECT_EQ(all(run({"recovered", "No such design", "out.shp"})),
              "1||No such design: no design of this name was put aside\n");
    EXPECT_EQ(run({"recovered", "Half"}).status, 2);

    // In the place of a folder, which not even root can look into.
    m_folder.write("FleetWright/recovered", "");
    const std::string home = "XDG_DATA_HOME=" + m_folder.path().string();
    EXPECT_EQ(runTool(m_folder.path().string(), {"recovered"}, home).errors,
              m_folder.path().string() +
                  "/FleetWright/recovered: cannot be read: Not a directory\n");
}
