#include "ShipClass.h"

#include "ReportPrinter.h"
#include "arcWords.h"
#include "designWords.h"

namespace fleetwright {

namespace {

void printIfAny(ReportPrinter& printer, const std::string& line) {
    if (!line.empty()) {
        printer.printLine(line);
    }
}

/// A line of the sheet's text block, which ends in a CR.
std::string sheetLine(const std::string& line) {
    return line.empty() ? line : line + '\r';
}

}  // namespace

void ShipClass::PrintShip(ReportPrinter& printer) const {
    printBanner(printer);
    printShipInfo(printer);
    printSystems(printer);
    printer.endDocument();
}

void ShipClass::printBanner(ReportPrinter& printer) const {
    printer.printLine("=====================================");
    printer.printLine("+      Iron Vector Ship Creator     +");
    printer.printLine("=====================================");
}

void ShipClass::printShipInfo(ReportPrinter& printer) const {
    printer.printLine("Ship Name: " + g_sShipName);
    printer.printLine("Designer Name: " + g_sDesignerName);
    printer.printLine("Mass: " + std::to_string(hull.mass));
    printer.printLine("Cost: " + std::to_string(g_lCost));
    printer.printLine("Thrust: " + std::to_string(hull.thrust));
    printIfAny(printer, hullLine(hull.hullType));
    printIfAny(printer, streamlineLine(Streamline()));
    printIfAny(printer, armorLine(Armor()));
    printIfAny(printer, ftlLine(hull.ftl));
    printer.printLine("Damage Points: " + std::to_string(g_iDP));
    printer.printLine("Damage Rows: " + std::to_string(g_iDamRows));
    printer.printLine("Mass Left: " + std::to_string(g_iMassLeft));
    printer.printEmptyLine();
}

void ShipClass::printSystems(ReportPrinter& printer) const {
    printer.printLine("Systems");
    printer.printLine("    " + std::to_string(g_iFCS) + " Fire Control System");
    printer.printLine("    " + std::to_string(g_iDCP) + " Damage Control Party");
    for (const WeapRec& record : systemsAboard()) {
        printer.printLine("    " + std::to_string(record.amount) + '\t' + std::string(record.name));
    }
}

std::string ShipClass::StreamString() const {
    return sheetLine(streamlineLine(Streamline()));
}

std::string ShipClass::ArmorString() const {
    return sheetLine(armorLine(Armor()));
}

bool ShipClass::PaintableWeap(std::string_view in_sWeapName) const {
    const std::int32_t index = weapNameToIndex(in_sWeapName);
    if (index == -1) {
        return false;
    }
    return hasSheetPlace(m_catalogue.records()[static_cast<std::size_t>(index)].arclist);
}

std::string_view ShipClass::GimmeWeapArc(std::string_view in_sWeapName) const {
    const std::int32_t index = weapNameToIndex(in_sWeapName);
    return index == -1 ? std::string_view()
                       : m_catalogue.records()[static_cast<std::size_t>(index)].arclist;
}

std::string_view ShipClass::rulesOf(std::string_view name) const {
    const std::int32_t index = weapNameToIndex(name);
    return index == -1 ? std::string_view() : m_catalogue.rulesOf(static_cast<std::size_t>(index));
}

}  // namespace fleetwright
