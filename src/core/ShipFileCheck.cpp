#include "ShipFileCheck.h"

#include "Error.h"
#include "ShipClass.h"
#include "ShipFileLine.h"
#include "designWords.h"
#include "text.h"
#include "wholeNumber.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace fleetwright {

namespace {

class ShipFileChecker {
public:
    ShipFileChecker(const ShipClass& ship, const std::optional<Fault>& loadFault)
        : m_ship(ship), m_loadFault(loadFault) {}

    std::vector<ShipFinding> checkFile(std::string_view text);
    std::vector<ShipFinding> checkDesign();

private:
    void checkLines(std::string_view text);
    void checkLine(std::string_view line);
    void checkValue(const ShipFileLine& line);
    void checkMass(const ShipFileLine& line);
    void checkThrust(const ShipFileLine& line);
    void checkArmor(const ShipFileLine& line);
    void checkSystem(const ShipFileLine& line);
    void noteMovement(ShipKey key, bool isMoving);
    void checkHull();
    void checkCloak();
    void checkLoad();
    void checkOverload();
    std::optional<std::int32_t> number(std::string_view text);
    void complain(std::string text) { complainAt(m_line, m_about, std::move(text), m_system); }
    void complainAt(int line, ShipKey about, std::string text, std::string_view system = {}) {
        m_findings.push_back({{line, std::move(text)}, about, std::string(system)});
    }

    const ShipClass& m_ship;
    const std::optional<Fault>& m_loadFault;
    std::vector<ShipFinding> m_findings;
    std::map<ShipKey, int> m_linesByKey;  // the last line of each key
    std::set<ShipKey> m_movingKeys;       // those whose value no base can have
    std::set<int> m_unknownSystems;       // lines that were said to name one
    std::set<int> m_badNumbers;           // lines that were said to have one
    std::int32_t m_hullType = Warship;
    int m_cloakLine = 0;
    bool m_hasOtherSystems = false;
    int m_line = 0;
    ShipKey m_about = ShipKey::Unknown;  // the key of that line
    std::string m_system;                // and the system, if it names one
};

std::vector<ShipFinding> ShipFileChecker::checkFile(std::string_view text) {
    checkLines(text);
    checkHull();
    // A type that stands behind the systems comes too late for the loader to refuse them.
    if (std::none_of(m_ship.refusedLines().begin(), m_ship.refusedLines().end(),
                     [](const RefusedLine& line) { return line.why == Refusal::CloakRule; })) {
        checkCloak();
    }
    checkLoad();
    if (!m_loadFault) {
        checkOverload();
    }
    sortByLine(m_findings);
    return std::move(m_findings);
}

std::vector<ShipFinding> ShipFileChecker::checkDesign() {
    checkLines(m_ship.shipFile());
    checkHull();
    checkCloak();
    checkOverload();
    for (ShipFinding& finding : m_findings) {
        finding.line = 0;
    }
    return std::move(m_findings);
}

void ShipFileChecker::checkLines(std::string_view text) {
    LineReader lines(text);
    std::string_view line;
    while (lines.next(line)) {
        m_line = lines.lineNumber();
        checkLine(line);
    }
}

void ShipFileChecker::checkLine(std::string_view text) {
    std::string cuttable(text);
    const ShipFileLine line = cutShipFileLine(cuttable);
    m_about = line.key;
    m_system = line.key == ShipKey::System ? line.value : std::string();
    if (text.empty()) {
        if (line.key != ShipKey::Unknown) {
            complain("an empty line goes on with what was left before, " + quote(cuttable));
        }
        return;
    }
    if (line.key == ShipKey::Unknown) {
        complain("nobody reads the key " + quote(line.keyText));
        return;
    }
    if (line.key != ShipKey::System) {
        const auto [earlier, isFirst] = m_linesByKey.try_emplace(line.key, m_line);
        if (!isFirst) {
            complain("a second line " + quote(line.keyText) + ": also line " +
                     std::to_string(earlier->second));
            earlier->second = m_line;
        }
    }
    if (line.key != ShipKey::Armor && std::count(text.begin(), text.end(), ':') > 1) {
        complain("what stands behind the second colon is lost");
    }
    if (line.key == ShipKey::System && std::count(text.begin(), text.end(), ',') > 1) {
        complain("what stands behind the second comma is lost");
    }
    checkValue(line);
}

void ShipFileChecker::checkValue(const ShipFileLine& line) {
    switch (line.key) {
    case ShipKey::Mass:
        return checkMass(line);
    case ShipKey::Thrust:
        return checkThrust(line);
    case ShipKey::Armor:
        return checkArmor(line);
    case ShipKey::System:
        return checkSystem(line);
    case ShipKey::Type:
        if (const auto hullType = hullTypeOf(line.value)) {
            m_hullType = *hullType;
        } else {
            complain("unknown hull type " + quote(line.value));
        }
        return;
    case ShipKey::Streamlining:
        if (!streamlineOf(line.value)) {
            complain("unknown streamlining " + quote(line.value));
        }
        return noteMovement(line.key, streamlineOf(line.value).has_value());
    case ShipKey::Ftl:
        if (!ftlOf(line.value)) {
            complain("unknown FTL drive " + quote(line.value));
        }
        return noteMovement(line.key, ftlOf(line.value).value_or(NoDrive) != NoDrive);
    default:
        return;
    }
}

void ShipFileChecker::checkMass(const ShipFileLine& line) {
    if (const auto mass = number(line.value); mass && *mass < smallestMass) {
        complain("mass " + std::to_string(*mass) + " is below the smallest, " +
                 std::to_string(smallestMass));
    }
}

void ShipFileChecker::checkThrust(const ShipFileLine& line) {
    const auto thrust = number(line.value);
    if (thrust && (*thrust < 0 || *thrust > mostThrust)) {
        complain("thrust " + std::to_string(*thrust) + " is outside 0 to " +
                 std::to_string(mostThrust));
    }
    noteMovement(line.key, thrust.value_or(0) != 0);
}

void ShipFileChecker::checkArmor(const ShipFileLine& line) {
    if (const auto level = number(line.value); level && *level != 1 && *level != 2) {
        complain("unknown armor level " + quote(line.value));
    }
}

void ShipFileChecker::noteMovement(ShipKey key, bool isMoving) {
    if (isMoving) {
        m_movingKeys.insert(key);
    } else {
        m_movingKeys.erase(key);
    }
}

void ShipFileChecker::checkSystem(const ShipFileLine& line) {
    if (m_ship.weapNameToIndex(line.value) == -1 || line.value == "CATEGORY") {
        complain(refusalText(Refusal::UnknownSystem, line.value));
        m_unknownSystems.insert(m_line);
    }
    const auto amount = number(line.amount);
    if (!amount) {
        return;
    }
    if (*amount < 1) {
        complain("amount " + std::to_string(*amount) + " is below 1");
    } else if (line.value == Catalogue::cloakName) {
        m_cloakLine = m_line;
    } else {
        m_hasOtherSystems = true;
    }
}

std::optional<std::int32_t> ShipFileChecker::number(std::string_view text) {
    try {
        const std::int32_t number = wholeNumber(text);
        if (text.find('.') != std::string_view::npos) {
            complain(quote(text) + " is read as " + std::to_string(number));
        }
        return number;
    } catch (const Error& error) {
        complain(error.what());
        m_badNumbers.insert(m_line);
        return std::nullopt;
    }
}

/// A base neither moves nor is streamlined, so the program takes all that away from it.
void ShipFileChecker::checkHull() {
    if (!isBase(m_hullType)) {
        return;
    }
    const auto complainAbout = [this](ShipKey key, const char* text) {
        if (m_movingKeys.contains(key)) {
            complainAt(m_linesByKey[key], key, text);
        }
    };
    complainAbout(ShipKey::Thrust, noThrust);
    complainAbout(ShipKey::Streamlining, noStreamlining);
    complainAbout(ShipKey::Ftl, noFtlDrive);
}

void ShipFileChecker::checkCloak() {
    if (isMerchantType(m_hullType) && m_cloakLine != 0 && m_hasOtherSystems) {
        complainAt(m_cloakLine, ShipKey::System,
                   refusalText(Refusal::CloakRule, Catalogue::cloakName), Catalogue::cloakName);
    }
}

/// What the load itself has found, unless the check of its line has said it already.
void ShipFileChecker::checkLoad() {
    for (const RefusedLine& line : m_ship.refusedLines()) {
        if (line.why != Refusal::UnknownSystem || !m_unknownSystems.contains(line.fault.line)) {
            complainAt(line.fault.line, ShipKey::System, line.fault.text, line.system);
        }
    }
    if (m_loadFault && !m_badNumbers.contains(m_loadFault->line)) {
        complainAt(m_loadFault->line, ShipKey::Unknown, m_loadFault->text);
    }
}

void ShipFileChecker::checkOverload() {
    if (std::string text = overloadText(m_ship); !text.empty()) {
        complainAt(0, ShipKey::Mass, std::move(text));
    }
}

}  // namespace

std::vector<Fault> checkShipFile(std::string_view text, const ShipClass& ship,
                                 const std::optional<Fault>& loadFault) {
    const std::vector<ShipFinding> findings = findInShipFile(text, ship, loadFault);
    return {findings.begin(), findings.end()};
}

std::vector<ShipFinding> findInShipFile(std::string_view text, const ShipClass& ship,
                                        const std::optional<Fault>& loadFault) {
    return ShipFileChecker(ship, loadFault).checkFile(text);
}

std::vector<ShipFinding> findInDesign(const ShipClass& ship) {
    return ShipFileChecker(ship, {}).checkDesign();
}

std::string overloadText(const ShipClass& ship) {
    const std::int64_t tooHeavy = -std::int64_t{ship.g_iMassLeft};
    return tooHeavy <= 0
               ? ""
               : "overloaded: the systems are " + std::to_string(tooHeavy) +
                     (tooHeavy == 1 ? " mass unit" : " mass units") + " too heavy for the hull";
}

}  // namespace fleetwright
