// Prints the balance table of the catalogue author's guide: what one piece of each system weighs
// and costs on warships of four sizes.

#include "Error.h"
#include "ShipClass.h"

#include <array>
#include <cstdio>
#include <exception>
#include <memory>

namespace {

using namespace fleetwright;

constexpr std::array<std::int32_t, 4> masses = {10, 32, 60, 100};

void printTable(const std::filesystem::path& catalogue) {
    std::array<std::unique_ptr<ShipClass>, masses.size()> ships;
    std::string head = "| System |";
    std::string rule = "|---|";
    for (std::size_t i = 0; i < masses.size(); ++i) {
        ships[i] = std::make_unique<ShipClass>(ShipServices{
            .catalogueFile = catalogue, .formula = formula_calculate, .eventLoopTurn = {}});
        ships[i]->mass(masses[i]);
        ships[i]->THRUST(4);
        head += " mass " + std::to_string(masses[i]) + " |";
        rule += "--:|";
    }
    std::printf("%s\n%s\n", head.c_str(), rule.c_str());

    WeapRec record;
    for (std::int32_t index = 0; index < ships.front()->g_lWeapCount;) {
        ships.front()->listWeap(index, record);
        if (record.name == "CATEGORY") {
            continue;
        }
        std::string line = "| " + std::string(record.name) + " |";
        for (const auto& ship : ships) {
            line += " " + std::to_string(ship->previewWeapMass(record.name, 1)) + " / " +
                    std::to_string(ship->previewWeapCost(record.name, 1)) + " |";
        }
        std::printf("%s\n", line.c_str());
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("Usage: balance-table WEAPS.DAT\n", stderr);
        return 2;
    }
    try {
        printTable(argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[1], error.what());
        return 1;
    }
    return 0;
}
