#include "testShip.h"

namespace fleetwright {

const std::string_view testCatalogue =
    "# a comment\r\n"
    "CATEGORY,0,0,BEAM,GUNS,O,guns.gif\r\n"
    "Gun,2 * amount,6 * amount,BEAM,GUNS,FPS,gun.gif\r\n"
    "\r\n"
    "Screen,roundup(mass * 0.1) * amount,3 * mass * amount,"
    "DEFENSE,DEFENSE,O,screen.gif\r\n"
    "Cloaking Field,roundup(mass / 10),mass,SPECIAL,SPECIAL,6,"
    "cloak.gif\r\n"
    "Damage Control Party,amount,4 * amount,SYSTEMS,SYSTEMS,O,"
    "party.gif\r\n"
    "Ballast,amount,0,SYSTEMS,SYSTEMS,OFP,ballast.gif\r\n"
    "Sponge,roundup(mass * 0.6),1,SYSTEMS,SYSTEMS,o,sponge.gif\r\n"
    "Wobble,mass % 4 = 2 ? mass / 2 + 1 : mass / 2 - 2,1,SYSTEMS,SYSTEMS,O,wobble.gif\r\n"
    "Slow,mass / 2 - 10 + (3000 - mass) * 0.005,1,SYSTEMS,SYSTEMS,O,slow.gif\r\n"
    "Giant,2000000000,2000000000,SYSTEMS,SYSTEMS,,giant.gif\r\n";

ShipYard::ShipYard(std::string_view catalogue) {
    m_folder.write("weaps.dat", catalogue);
}

ShipServices ShipYard::services() const {
    return {.catalogueFile = m_folder.path() / "weaps.dat",
            .formula = formula_calculate,
            .eventLoopTurn = {}};
}

std::unique_ptr<ShipClass> ShipYard::loaded(std::string_view shipFile) const {
    auto ship = newShip();
    ship->loadShip(m_folder.write("loaded.shp", shipFile));
    return ship;
}

EventLog::EventLog(ShipClass& ship) {
    listen(ship.Recalculating, "(");
    listen(ship.Recalculated, ")");
    listen(ship.WeaponNotFound, "unknown");
    listen(ship.CloakAndMerchant, "cloak");
    listen(ship.ShipSaved, "saved");
    listen(ship.ShipLoaded, "loaded");
    listen(ship.AutoMassUnsettled, "unsettled");
}

void EventLog::listen(Signal<>& signal, const std::string& name) {
    m_connections.push_back(signal.connect([this, name] { m_text += name + ' '; }));
}

std::string EventLog::take() {
    std::string text = std::move(m_text);
    m_text.clear();
    if (!text.empty()) {
        text.pop_back();
    }
    return text;
}

std::int32_t amountOf(const ShipClass& ship, std::string_view name) {
    WeapRec record;
    std::int32_t index = ship.weapNameToIndex(name);
    ship.listWeap(index, record);
    return record.amount;
}

std::string figures(const ShipClass& ship) {
    return std::to_string(ship.g_lCost) + ' ' + std::to_string(ship.g_iDP) + ' ' +
           std::to_string(ship.g_iDamRows) + ' ' + std::to_string(ship.g_iDCP) + ' ' +
           std::to_string(ship.g_iFCS) + ' ' + std::to_string(ship.g_iMassLeft);
}

}  // namespace fleetwright
