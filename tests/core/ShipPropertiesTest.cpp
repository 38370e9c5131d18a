// What holds of any ship that acts by chance have made, on the delivered catalogue and systems that
// are hard on AutoMass and on the width of the fields.

#include "Error.h"
#include "explainShip.h"
#include "forSeeds.h"
#include "readFile.h"
#include "testShip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

using namespace fleetwright;

namespace {

class AnyShip {
public:
    explicit AnyShip(std::mt19937& random) : m_random(random) {}

    void run() {
        for (int act = 0; act < 80 && !testing::Test::HasFailure(); ++act) {
            m_ship->g_bAutoMass = any(0, 4) == 0;
            const ShipState before = m_ship->state();
            actOnce(before);
            EXPECT_FALSE(m_ship->isBusy());
            expectFiguresOfItsDesign();
            expectSums();
            const ShipState after = m_ship->state();
            m_ship->restore(before);
            EXPECT_EQ(m_ship->state(), before) << "back to what it was";
            m_ship->restore(after);
        }
        expectBackFromItsFile();
    }

private:
    int any(int least, int most) { return anyOf(m_random, least, most); }

    void actOnce(const ShipState& before) {
        Connection fault;
        if (any(0, 7) == 0) {
            fault = m_ship->Recalculated.connect([] { throw std::runtime_error("fault"); });
        }
        try {
            act();
            EXPECT_FALSE(m_ship->g_bSaved && m_ship->state() != before) << "changed";
        } catch (const std::exception&) {
            EXPECT_EQ(m_ship->state(), before) << "what fails changes nothing";
        }
    }

    void act() {
        const int code = any(-1, 9);
        switch (any(0, 10)) {
        case 0:
            return m_ship->Armor(code);
        case 1:
            return m_ship->Streamline(static_cast<std::int16_t>(code));
        case 2:
            return m_ship->Hull(any(0, 3) == 0 ? code : any(1, 6));
        case 3:
            return m_ship->FTL(any(0, 3) == 0 ? code : any(0, 1));
        case 4:
            return m_ship->THRUST(static_cast<std::int16_t>(code));
        case 5:
            return m_ship->mass(any(0, 3) == 0 ? any(0, 1'000'000'000) : any(0, 300));
        case 6:
            return m_ship->weapChange();
        default:
            WeapRec record;
            std::int32_t index = any(0, m_ship->g_lWeapCount - 1);
            m_ship->listWeap(index, record);
            m_ship->addWeap(record.name, any(0, 9) == 0 ? any(0, 2'000'000'000) : any(-2, 9));
        }
    }

    /// A new ship of the same design has the same figures.
    void expectFiguresOfItsDesign() {
        ShipState expected = m_ship->state();
        expected.g_bSaved = expected.g_bAutoMass = false;
        ShipClass twin(m_yard.services());
        twin.restore(expected);
        twin.weapChange();
        EXPECT_EQ(twin.state(), expected) << m_ship->shipFile();
    }

    void expectSums() {
        for (const Explanation& figure : explainShip(*m_ship)) {
            std::int64_t sum = 0;
            for (const Explanation::Term& term : figure.terms) {
                sum += term.value;
            }
            EXPECT_EQ(sum, figure.sum) << textOf(figure);
        }
    }

    /// But for what no file has a word for, and what the cloak rule lets in by a change of the
    /// hull.
    void expectBackFromItsFile() {
        m_ship->g_bAutoMass = false;
        try {
            m_ship->Hull(any(0, 1) == 0 ? Warship : QShip);
            m_ship->FTL(any(0, 1) == 0 ? NoDrive : TugDrive);
        } catch (const OverflowError&) {
            return;
        }
        m_ship->g_sShipName = "Ship " + std::to_string(any(0, 99)) + " – né";
        m_ship->g_sDesignerName = any(0, 1) == 0 ? "" : "Designer, with a comma";
        ShipState expected = m_ship->state();
        std::erase_if(expected.amounts, [](const auto& system) { return system.second < 0; });
        std::string file = (m_yard.folder().path() / "any").string();
        ASSERT_TRUE(m_ship->saveShip(file));
        ShipClass loaded(m_yard.services());
        ASSERT_TRUE(loaded.loadShip(file)) << m_ship->shipFile() << loaded.fileFault()->text;
        loaded.weapChange();
        ShipState is = loaded.state();
        EXPECT_EQ(loaded.shipFile(), m_ship->shipFile());
        is.g_sSaveName = is.g_sTrimmedFileName = is.origin = "";
        EXPECT_EQ(is, expected) << m_ship->shipFile();
    }

    std::mt19937& m_random;
    const ShipYard m_yard{readTextFile(SOURCE_FOLDER "/data/weaps.dat") +
                          std::string(testCatalogue)};
    const std::unique_ptr<ShipClass> m_ship = m_yard.newShip();
};

}  // namespace

TEST(ShipProperties, HoldOfAnyShip) {
    forSeeds([](std::mt19937& random) {
        for (int ship = 0; ship < 10 && !testing::Test::HasFailure(); ++ship) {
            AnyShip(random).run();
        }
    });
}
