#include "ReportPrinter.h"
#include "explainShip.h"
#include "testShip.h"

#include <gtest/gtest.h>

using namespace fleetwright;

using ShipReportTest = NewShip;

namespace {

class Recorder : public ReportPrinter {
public:
    void printLine(std::string_view line) override { text += std::string(line) + '\n'; }
    void printEmptyLine() override { text += "<empty>\n"; }
    void endDocument() override { text += "<end>"; }

    std::string text;
};

}  // namespace

TEST_F(ShipReportTest, IsPrintedToTheLetter) {
    Recorder plain;
    ship->PrintShip(plain);
    EXPECT_EQ(plain.text, "=====================================\n"
                          "+      Iron Vector Ship Creator     +\n"
                          "=====================================\n"
                          "Ship Name: Generic\n"
                          "Designer Name: Nils's Iron Vector Creator\n"
                          "Mass: 2\n"
                          "Cost: 7\n"
                          "Thrust: 2\n"
                          "Type: Warship\n"
                          "FTL: Normal\n"
                          "Damage Points: 1\n"
                          "Damage Rows: 2\n"
                          "Mass Left: 1\n"
                          "<empty>\n"
                          "Systems\n"
                          "    1 Fire Control System\n"
                          "    0 Damage Control Party\n"
                          "<end>");
    ship->Hull(QSpaceStation);
    ship->mass(150);
    ship->FTL(TugDrive);
    ship->Armor(1);
    ship->Streamline(2);
    ship->addWeap("Ballast", 90);
    ship->addWeap("Gun", 3);
    ship->addWeap("Screen", -2);
    Recorder full;
    ship->PrintShip(full);
    EXPECT_EQ(full.text.substr(full.text.find("Mass: 150")), "Mass: 150\n"
                                                             "Cost: 918\n"
                                                             "Thrust: 2\n"
                                                             "Type: Q-Space Station\n"
                                                             "Streamlining: Full\n"
                                                             "Armor: Level 1\n"
                                                             "FTL: Tug\n"
                                                             "Damage Points: 38\n"
                                                             "Damage Rows: 6\n"
                                                             "Mass Left: -21\n"
                                                             "<empty>\n"
                                                             "Systems\n"
                                                             "    4 Fire Control System\n"
                                                             "    4 Damage Control Party\n"
                                                             "    3\tGun\n"
                                                             "    90\tBallast\n"
                                                             "<end>");
}

TEST_F(ShipReportTest, TextsForTheSheet) {
    EXPECT_EQ(ship->StreamString() + ship->ArmorString(), "");
    ship->Streamline(1);
    ship->Armor(2);
    EXPECT_EQ(ship->StreamString(), "Streamlining: Partial\r");
    EXPECT_EQ(ship->ArmorString(), "Armor: Level 2\r");

    EventLog events(*ship);
    for (const char* painted : {"Gun", "Sponge", "Giant"}) {
        EXPECT_TRUE(ship->PaintableWeap(painted)) << painted;
    }
    for (const char* listed : {"Screen", "Cloaking Field", "Ballast", "Nothing"}) {
        EXPECT_FALSE(ship->PaintableWeap(listed)) << listed;
    }
    EXPECT_EQ(ship->GimmeWeapArc("Gun"), "FPS");
    EXPECT_EQ(ship->GimmeWeapArc("Nothing"), "");
    EXPECT_EQ(events.take(), "");
}

TEST_F(ShipReportTest, TermsAddUpToEachFigure) {
    ship->mass(37);
    ship->Armor(2);
    ship->Streamline(1);
    ship->addWeap("Gun", 3);
    ship->addWeap("Screen", 2);
    std::string text;
    for (const Explanation& explanation : explainShip(*ship)) {
        std::int64_t sum = 0;
        for (const Explanation::Term& term : explanation.terms) {
            sum += term.value;
            text += std::to_string(term.value) + ' ' + term.text + '\n';
        }
        EXPECT_EQ(sum, explanation.sum) << explanation.figure;
        text += std::to_string(explanation.sum) + " = " + explanation.figure + '\n';
    }
    const std::string hull = "Warship hull of mass 37, armor level 2, partial streamlining\n";
    EXPECT_EQ(text, "130 " + hull +
                        "37 FTL drive: Normal\n74 Thrust 2\n18 3 x Gun\n"
                        "222 2 x Screen\n481 = Cost\n"
                        "19 " +
                        hull +
                        "19 = Damage points\n"
                        "19 Free mass of the " +
                        hull + "-6 3 x Gun\n-8 2 x Screen\n5 = Mass left\n");
}
