// A design that is changed by chance. An input is a course of acts; after each of them the ship
// must be what the act was to make of it.

#include "DesignModel.h"
#include "Error.h"
#include "TemporaryFolder.h"
#include "explainShip.h"
#include "require.h"
#include "shipWords.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace fleetwright;

namespace {

/// Systems that are hard on AutoMass and on the width of the fields.
constexpr const char* oddCatalogue =
    "CATEGORY,0,0,BEAM,GUNS,O,guns.gif\r\n"
    "Gun,2 * amount,6 * amount,BEAM,GUNS,FPS,gun.gif\r\n"
    "Screen,roundup(mass * 0.1) * amount,3 * mass * amount,DEFENSE,DEFENSE,O,screen.gif\r\n"
    "Cloaking Field,roundup(mass / 10),mass,SPECIAL,SPECIAL,6,cloak.gif\r\n"
    "Ballast,amount,hullcost * amount,SYSTEMS,SYSTEMS,OFP,ballast.gif\r\n"
    "Sponge,roundup(mass * 0.6),thrust * ftl,SYSTEMS,SYSTEMS,o,sponge.gif\r\n"
    "Wobble,mass % 4 = 2 ? mass / 2 + 1 : mass / 2 - 2,1,SYSTEMS,SYSTEMS,O,wobble.gif\r\n"
    "Slow,mass / 2 - 10 + (3000 - mass) * 0.005,1,SYSTEMS,SYSTEMS,O,slow.gif\r\n"
    "Giant,2000000000,2000000000,SYSTEMS,SYSTEMS,,giant.gif\r\n"
    "Titan,1000000000,2000000000,SYSTEMS,SYSTEMS,,titan.gif\r\n"
    "Rebate,-amount,-50 * amount,SYSTEMS,SYSTEMS,,rebate.gif\r\n"
    "Gun,1,1,BEAM,GUNS,FPS,gun.gif\r\n";

class Course {
public:
    Course(FuzzedDataProvider& data, const ShipServices& services, const TemporaryFolder& folder)
        : m_data(data), m_services(services), m_folder(folder),
          m_listener(data.PickValueInArray(
              {Listener::Nobody, Listener::BringsInOrder, Listener::WritesBack})) {
        take(std::make_unique<ShipClass>(m_services));
    }

    void run() {
        constexpr int mostActs = 60;
        for (int i = 0; i < mostActs && m_data.remaining_bytes() > 0; ++i) {
            step();
        }
        saveAndLoad();
    }

private:
    /// Who listens to the ship and writes to it while it is at work, as the window does.
    enum class Listener {
        Nobody,
        BringsInOrder,  ///< makes a base one that does not move, and a ship no smaller than allowed
        WritesBack      ///< shows the mass, and writes what it shows
    };

    /// How often a ship has raised each of its events.
    struct Events {
        int recalculating, recalculated, unsettled, refused, unknown;
    };

    void take(std::unique_ptr<ShipClass> ship);
    void step();
    void perform(const DesignModel& wanted, const std::function<void()>& act);
    void checkDone(const DesignModel& wanted);
    void checkAutoMass(const DesignModel& wanted);
    void bringInOrder();
    void writeBack();

    std::int32_t number();
    void set(const HullDesign& hull, const std::function<void()>& setter);
    void setPart();
    void add();
    void addUnknown();
    void switchAutoMass();
    std::string hullAndSystems() const;
    void keepOrGoBack();
    void look();
    void saveAndLoad();

    FuzzedDataProvider& m_data;
    const ShipServices& m_services;
    const TemporaryFolder& m_folder;
    Listener m_listener;
    std::int32_t m_shownMass = 0;
    std::unique_ptr<ShipClass> m_ship;
    std::vector<Connection> m_listeners;
    std::vector<WeapRec> m_records;
    std::optional<ShipState> m_kept;
    std::string m_keptText;
    Events m_events{};
};

void Course::take(std::unique_ptr<ShipClass> ship) {
    m_listeners.clear();
    m_ship = std::move(ship);
    m_kept.reset();
    m_records.clear();
    WeapRec record;
    for (std::int32_t index = 0; index < m_ship->g_lWeapCount;) {
        m_ship->listWeap(index, record);
        m_records.push_back(record);
    }
    const auto count = [this](Signal<>& event, int& counter) {
        m_listeners.push_back(event.connect([&counter] { ++counter; }));
    };
    count(m_ship->Recalculating, m_events.recalculating);
    count(m_ship->Recalculated, m_events.recalculated);
    count(m_ship->AutoMassUnsettled, m_events.unsettled);
    count(m_ship->CloakAndMerchant, m_events.refused);
    count(m_ship->WeaponNotFound, m_events.unknown);
    m_shownMass = m_ship->mass();
    if (m_listener == Listener::BringsInOrder) {
        m_listeners.push_back(m_ship->Recalculated.connect([this] { bringInOrder(); }));
    } else if (m_listener == Listener::WritesBack) {
        m_listeners.push_back(m_ship->Recalculated.connect([this] { writeBack(); }));
    }
}

void Course::writeBack() {
    if (m_ship->mass() != m_shownMass) {
        m_shownMass = m_ship->mass();
        m_ship->mass(m_shownMass);
    }
}

/// An act at a time.
void Course::bringInOrder() {
    const HullDesign wanted = inOrder(m_ship->hullDesign());
    if (m_ship->FTL() != wanted.ftl) {
        m_ship->FTL(wanted.ftl);
    }
    if (m_ship->hullDesign().thrust != wanted.thrust) {
        m_ship->THRUST(static_cast<std::int16_t>(wanted.thrust));
    }
    if (m_ship->hullDesign().streamline != wanted.streamline) {
        m_ship->Streamline(0);
    }
    if (m_ship->mass() != wanted.mass) {
        m_ship->mass(m_ship->mass());
    }
}

/// Runs an act that is to make the ship `wanted`, but for what AutoMass then makes of its mass.
void Course::perform(const DesignModel& wanted, const std::function<void()>& act) {
    const std::string before = describe(*m_ship);
    const bool wasSaved = m_ship->g_bSaved;
    m_events = {};
    try {
        act();
    } catch (const OverflowError&) {
        requireSame(describe(*m_ship), before, "an act that overflows changes nothing");
        require(m_ship->g_bSaved == wasSaved && !m_ship->isBusy(), "and leaves nothing under way");
        require(m_listener != Listener::Nobody || !wanted.figures(m_services),
                "only what overflows is refused");
        m_shownMass = m_ship->mass();
        return;
    }
    checkDone(wanted);
}

void Course::checkDone(const DesignModel& wanted) {
    require(!m_ship->isBusy() && !m_ship->g_bSaved, "an act ends and leaves the ship unsaved");
    const DesignModel is = DesignModel::of(*m_ship);
    requireSame(figuresOf(*m_ship), is.figures(m_services).value_or("overflow"),
                "a ship has the figures of a new one of its design");
    require(m_events.recalculating > 0 && m_events.recalculated > 0, "figures are worked out anew");
    if (m_listener == Listener::BringsInOrder) {
        DesignModel ordered = is;
        ordered.hull = inOrder(is.hull);
        requireSame(textOf(is), textOf(ordered), "a listener has its way");
        return;
    }
    if (m_listener == Listener::WritesBack) {
        require(is.hull.mass == m_shownMass, "what is shown is the ship's mass");
        if (m_events.unsettled > 0) {
            DesignModel kept = wanted;
            // A mass that is written back does not stay below the smallest.
            if (m_ship->mass() == smallestMass) {
                kept.hull.mass = std::max(wanted.hull.mass, smallestMass);
            }
            requireSame(textOf(is), textOf(kept), "a ship that nothing fits keeps its mass");
        }
        return;
    }
    constexpr int mostPasses = 1001;
    require(m_events.recalculating <= mostPasses, "AutoMass comes to an end");
    if (wanted.isAutoMass) {
        checkAutoMass(wanted);
        return;
    }
    require(m_events.recalculating == 1 && m_events.recalculated == 1 && m_events.unsettled == 0,
            "an act is one recalculation");
    requireSame(textOf(is), textOf(wanted), "an act does what it is to do");
}

/// AutoMass fits the mass, or leaves it and says so; it changes nothing else.
void Course::checkAutoMass(const DesignModel& wanted) {
    DesignModel fitted = wanted;
    fitted.hull.mass = m_ship->mass();
    requireSame(textOf(DesignModel::of(*m_ship)), textOf(fitted), "AutoMass changes the mass only");
    if (m_events.unsettled > 0) {
        require(m_events.unsettled == 1 && m_ship->mass() == wanted.hull.mass,
                "a ship that nothing fits keeps its mass");
    } else {
        require(m_ship->g_iMassLeft == 0 || m_ship->g_iMassLeft == 1, "AutoMass fits the mass");
    }
}

void Course::step() {
    constexpr int kinds = 15;
    const int kind = m_data.ConsumeIntegralInRange(0, kinds - 1);
    if (kind < 5) {
        setPart();
    } else if (kind < 9) {
        add();
    } else if (kind == 9) {
        addUnknown();
    } else if (kind == 10) {
        switchAutoMass();
    } else if (kind == 11) {
        keepOrGoBack();
    } else if (kind == 12) {
        look();
    } else if (kind == 13) {
        saveAndLoad();
    } else {
        take(std::make_unique<ShipClass>(m_services));
    }
}

void Course::switchAutoMass() {
    m_ship->g_bAutoMass = !m_ship->g_bAutoMass;
    perform(DesignModel::of(*m_ship), [this] { m_ship->weapChange(); });
}

/// Mostly a number that ships have, now and then any.
std::int32_t Course::number() {
    switch (m_data.ConsumeIntegralInRange(0, 7)) {
    case 0:
        return m_data.ConsumeIntegral<std::int32_t>();
    case 1:
        return m_data.ConsumeIntegralInRange<std::int32_t>(-5, 5000);
    default:
        return m_data.ConsumeIntegralInRange<std::int32_t>(0, 120);
    }
}

void Course::set(const HullDesign& hull, const std::function<void()>& setter) {
    DesignModel wanted = DesignModel::of(*m_ship);
    wanted.hull = hull;
    perform(wanted, setter);
}

void Course::setPart() {
    HullDesign hull = m_ship->hullDesign();
    const auto code = m_data.ConsumeIntegralInRange<std::int16_t>(-1, 9);
    const bool isLevel = code >= 0 && code <= 2;
    switch (m_data.ConsumeIntegralInRange(0, 6)) {
    case 0:
        hull.armor = isLevel ? code : hull.armor;
        set(hull, [&] { m_ship->Armor(code); });
        break;
    case 1:
        hull.streamline = isLevel ? code : hull.streamline;
        set(hull, [&] { m_ship->Streamline(code); });
        break;
    case 2:
        hull.hullType = code;
        set(hull, [&] { m_ship->Hull(code); });
        break;
    case 3:
        hull.ftl = code;
        set(hull, [&] { m_ship->FTL(code); });
        break;
    case 4:
        hull.thrust = std::clamp<std::int32_t>(code, 0, mostThrust);
        set(hull, [&] { m_ship->THRUST(code); });
        break;
    default: {
        const std::int32_t mass = number();
        hull.mass = std::max(mass, smallestMass);
        set(hull, [&] { m_ship->mass(mass); });
    }
    }
}

/// Fits systems or takes them away.
void Course::add() {
    const std::size_t record = m_data.ConsumeIntegralInRange<std::size_t>(0, m_records.size() - 1);
    const std::string_view name = m_records[record].name;
    DesignModel wanted = DesignModel::of(*m_ship);
    std::int32_t amount = number();
    if (m_data.ConsumeIntegralInRange(0, 3) == 0) {
        amount = static_cast<std::int32_t>(std::max(
            -wanted.amounts[record], std::int64_t{std::numeric_limits<std::int32_t>::min() + 1}));
    }
    const auto find = [this](std::string_view wantedName) {
        const auto found = std::find_if(m_records.begin(), m_records.end(),
                                        [&](const auto& r) { return r.name == wantedName; });
        return static_cast<std::size_t>(found - m_records.begin());
    };
    if (wanted.cloakRuleRefuses(name, find(Catalogue::cloakName))) {
        const std::string before = describe(*m_ship);
        const bool wasSaved = m_ship->g_bSaved;
        m_events = {};
        require(!m_ship->addWeap(name, amount) && m_events.refused == 1,
                "the cloak rule refuses and says so");
        require(m_events.recalculating == 0 && m_ship->g_bSaved == wasSaved,
                "what is refused is no act");
        requireSame(describe(*m_ship), before, "what is refused changes nothing");
        return;
    }
    wanted.amounts[find(name)] += amount;
    perform(wanted,
            [&] { require(m_ship->addWeap(name, amount), "what is not refused is taken"); });
}

void Course::addUnknown() {
    const std::string name = "no " + m_data.ConsumeRandomLengthString(8);
    const DesignModel wanted = DesignModel::of(*m_ship);
    const auto cloak = static_cast<std::size_t>(m_ship->weapNameToIndex(Catalogue::cloakName));
    if (!wanted.cloakRuleRefuses(name, cloak)) {
        perform(wanted, [&] {
            require(!m_ship->addWeap(name, number()) && m_events.unknown == 1,
                    "an unknown system is refused");
        });
    }
}

/// What a state of a ship holds.
std::string Course::hullAndSystems() const {
    DesignModel design = DesignModel::of(*m_ship);
    design.isAutoMass = false;
    return textOf(design) + figuresOf(*m_ship);
}

void Course::keepOrGoBack() {
    if (!m_kept || m_data.ConsumeBool()) {
        m_kept = m_ship->state();
        m_keptText = hullAndSystems();
        return;
    }
    m_events = {};
    m_ship->restore(*m_kept);
    requireSame(hullAndSystems(), m_keptText, "a ship goes back to what it was");
    require(m_events.recalculating == 0 && m_ship->g_bSaved == m_kept->g_bSaved,
            "and says nothing of it");
}

/// What only looks at a ship changes nothing, and says what the figures say.
void Course::look() {
    const std::string before = describe(*m_ship);
    const bool wasSaved = m_ship->g_bSaved;
    const std::size_t record = m_data.ConsumeIntegralInRange<std::size_t>(0, m_records.size() - 1);
    const auto first = static_cast<std::size_t>(m_ship->weapNameToIndex(m_records[record].name));
    const std::int32_t amount = number();
    const HullDesign& hull = m_ship->hullDesign();
    const auto value = [&](std::string_view formula) {
        std::string text(formula);
        return formula_calculate(text.data(), hull.mass, hull.hullType, hull.ftl, hull.thrust,
                                 m_ship->hullFigures().hullCost, amount);
    };
    require(m_ship->previewWeapCost(m_records[record].name, amount) ==
                    value(m_records[first].costform) &&
                m_ship->previewWeapMass(m_records[record].name, amount) ==
                    value(m_records[first].massform),
            "a preview is what the formula says");
    requireSums(*m_ship);
    describeSystem(*m_ship, m_records[record].name, amount);
    requireSame(describe(*m_ship), before, "who looks changes nothing");
    require(m_ship->g_bSaved == wasSaved, "who looks changes nothing");
}

/// Goes on with what comes back from a file, which must be the same design.
void Course::saveAndLoad() {
    m_ship->g_sShipName = "Ship, no. " + std::to_string(m_data.remaining_bytes());
    const DesignModel saved = DesignModel::of(*m_ship);
    std::string file = (m_folder.path() / "ship").string();
    require(m_ship->saveShip(file) && m_ship->g_bSaved && file.ends_with("ship.shp"),
            "a ship can be saved");
    requireSame(m_folder.read("ship.shp"), m_ship->shipFile(), "the file holds the design");
    auto loaded = std::make_unique<ShipClass>(m_services);
    if (!loaded->loadShip(file)) {
        require(!saved.hasWords() || overflowsOnTheWay(*m_ship, m_services),
                "what was saved loads");
        return;
    }
    require(loaded->g_bSaved && !loaded->g_bAutoMass, "a loaded ship is saved");
    if (saved.hasWords() && !breaksCloakRule(*m_ship)) {
        loaded->weapChange();
        requireSame(describe(*loaded, false), describe(*m_ship, false), "what is saved comes back");
        requireSame(loaded->shipFile(), m_ship->shipFile(), "a saved text stays as it is");
        take(std::move(loaded));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const TemporaryFolder folder;
    static const std::array<ShipServices, 2> services = {
        ShipServices{.catalogueFile = folder.write("weaps.dat", oddCatalogue),
                     .formula = formula_calculate,
                     .eventLoopTurn = {}},
        ShipServices{.catalogueFile = deliveredCatalogue(folder),
                     .formula = formula_calculate,
                     .eventLoopTurn = {}}};
    FuzzedDataProvider data(bytes, size);
    // The odd catalogue is the quicker one, too.
    const bool isDelivered = data.ConsumeIntegralInRange(0, 7) == 0;
    Course(data, services[isDelivered ? 1 : 0], folder).run();
    return 0;
}
