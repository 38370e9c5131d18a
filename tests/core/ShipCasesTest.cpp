// What acts and files make of a ship, as transcripts.

#include "Error.h"
#include "ReportPrinter.h"
#include "ShipFileCheck.h"
#include "caseFile.h"
#include "explainShip.h"
#include "faults.h"
#include "paths.h"
#include "testShip.h"
#include "wholeNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

using namespace fleetwright;

namespace {

class ReportText : public ReportPrinter {
public:
    void printLine(std::string_view line) override { text += std::string(line) + '\n'; }
    void printEmptyLine() override { text += "<empty>\n"; }
    void endDocument() override { text += "<end>\n"; }

    std::string text;
};

/// The design of a ship, its figures, and whether it is saved.
std::string shown(const ShipClass& ship) {
    const HullDesign& hull = ship.hullDesign();
    std::string text;
    for (const auto& [name, value] : {std::pair("hull", hull.hullType),
                                      {" mass", hull.mass},
                                      {" thrust", hull.thrust},
                                      {" ftl", hull.ftl},
                                      {" armor", ship.Armor()},
                                      {" streamline", ship.Streamline()}}) {
        text += std::string(name) + ' ' + std::to_string(value);
    }
    return text + (ship.g_bAutoMass ? " auto | " : " | ") + figures(ship) +
           (ship.g_bSaved ? " | saved" : " | changed");
}

/// Events in a few words, however many there are.
std::string shortened(const std::string& events) {
    const auto passes = std::count(events.begin(), events.end(), '(');
    return passes < 5 ? events
                      : std::to_string(passes) + " passes, " + events.substr(events.size() - 13);
}

/// Carries acts out, a line each, and writes down what comes of each.
class Transcript {
public:
    explicit Transcript(const Case& given)
        : m_yard(given["catalogue"].empty() ? std::string(testCatalogue) : given["catalogue"]) {
        addWrites();
        addLooks();
        addFiles();
        renew();
        for (const std::string& line : linesOf(given["acts"])) {
            perform(line);
        }
    }

    const std::string& text() const { return m_text; }

private:
    using Act = std::function<std::string(const std::string& words)>;

    std::string renew() {
        m_ship = m_yard.newShip();
        m_events = std::make_unique<EventLog>(*m_ship);
        return {};
    }

    void perform(const std::string& line) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        std::string said;
        try {
            said = m_acts.at(line.substr(0, blank))(line.substr(std::min(blank + 1, line.size())));
        } catch (const Error& error) {
            said = error.what();
        }
        const std::string events = m_events->take();
        m_text += line + (events.empty() ? "" : ": " + shortened(events) + " " + shown(*m_ship));
        m_text += (said.empty() ? "" : "\n" + said) + (said.ends_with('\n') ? "" : "\n");
    }

    void addWrites() {
        const auto write = [this](const std::string& word, void (*setter)(ShipClass&, int)) {
            m_acts[word] = [this, setter](const std::string& words) {
                setter(*m_ship, wholeNumber(words));
                return std::string();
            };
        };
        write("mass", [](ShipClass& ship, int n) { ship.mass(n); });
        write("hull", [](ShipClass& ship, int n) { ship.Hull(n); });
        write("ftl", [](ShipClass& ship, int n) { ship.FTL(n); });
        write("armor", [](ShipClass& ship, int n) { ship.Armor(n); });
        write("thrust", [](ShipClass& ship, int n) { ship.THRUST(static_cast<std::int16_t>(n)); });
        write("streamline",
              [](ShipClass& ship, int n) { ship.Streamline(static_cast<std::int16_t>(n)); });
        write("saved", [](ShipClass& ship, int n) { ship.g_bSaved = n != 0; });
        write("auto", [](ShipClass& ship, int n) {
            ship.g_bAutoMass = n != 0;
            ship.weapChange();
        });
        addSystemAct("add", [this](const std::string& name, int amount) {
            return m_ship->addWeap(name, amount) ? "" : "not taken";
        });
    }

    /// An act with a system and an amount: "add Gun: 3".
    void addSystemAct(const std::string& word,
                      const std::function<std::string(const std::string&, int)>& act) {
        m_acts[word] = [act](const std::string& words) {
            const std::size_t colon = words.find(": ");
            return act(words.substr(0, colon), wholeNumber(words.substr(colon + 2)));
        };
    }

    void addLooks() {
        m_acts["new"] = [this](const std::string&) { return renew(); };
        addSystemAct("preview", [this](const std::string& name, int amount) {
            return "mass " + std::to_string(m_ship->previewWeapMass(name, amount)) + ", cost " +
                   std::to_string(m_ship->previewWeapCost(name, amount));
        });
        addSystemAct("describe", [this](const std::string& name, int amount) {
            return describeSystem(*m_ship, name, amount);
        });
        m_acts["names"] = [this](const std::string&) {
            return std::string(m_ship->Class()) + ", " + std::string(m_ship->relSize());
        };
        m_acts["file"] = [this](const std::string&) {
            std::string text = m_ship->shipFile();
            std::erase(text, '\r');
            return text;
        };
        m_acts["report"] = [this](const std::string&) {
            ReportText report;
            m_ship->PrintShip(report);
            return report.text;
        };
        m_acts["explain"] = [this](const std::string&) {
            std::string text;
            for (const Explanation& figure : explainShip(*m_ship)) {
                text += textOf(figure);
            }
            return text;
        };
        m_acts["sheet"] = [this](const std::string&) { return sheet(); };
    }

    /// Acts with files below a folder of their own; in what is put there, / ends a line.
    void addFiles() {
        m_acts["put"] = [this](const std::string& words) {
            const std::size_t blank = words.find(' ');
            m_yard.folder().write(words.substr(0, blank),
                                  replaced(words.substr(blank + 1), "/", "\r"));
            return std::string();
        };
        m_acts["load"] = [this](const std::string& name) {
            return named(m_ship->loadShip(fileNamed(name)));
        };
        m_acts["save"] = [this](const std::string& name) {
            const ShipState before = m_ship->state();
            std::string file = fileNamed(name);
            const bool isDone = m_ship->saveShip(file);
            EXPECT_TRUE(isDone ? file == m_ship->g_sSaveName : m_ship->state() == before);
            return named(isDone);
        };
    }
    std::string fileNamed(const std::string& name) const {
        return (m_yard.folder().path() / nativePath(name)).string();
    }
    std::string named(bool isDone) const {
        const std::string name = m_ship->g_sTrimmedFileName + " of " + m_ship->g_sSaveName;
        return isDone ? inAppFolder(name, m_yard.folder().path().string())
                      : textOf({*m_ship->fileFault()});
    }

    /// What a sheet asks the ship.
    std::string sheet() const {
        std::string text = m_ship->StreamString() + m_ship->ArmorString();
        std::replace(text.begin(), text.end(), '\r', '\n');
        WeapRec record;
        for (std::int32_t index = 0; index < m_ship->g_lWeapCount;) {
            m_ship->listWeap(index, record);
            text += std::string(record.name) + ' ' +
                    std::string(m_ship->GimmeWeapArc(record.name)) +
                    (m_ship->PaintableWeap(record.name) ? " is placed\n" : "\n");
        }
        EXPECT_FALSE(m_ship->PaintableWeap("Nothing"));
        EXPECT_EQ(m_ship->GimmeWeapArc("Nothing"), "");
        return text;
    }

    const ShipYard m_yard;
    std::unique_ptr<ShipClass> m_ship;
    std::unique_ptr<EventLog> m_events;
    std::map<std::string, Act> m_acts;
    std::string m_text;
};

/// What a file makes of a new ship, and what its author is told.
std::string loadedAndChecked(const std::string& file) {
    static const ShipYard yard;
    const auto ship = yard.newShip();
    ship->g_bAutoMass = true;
    EventLog events(*ship);
    const bool isLoaded = ship->loadShip(yard.folder().write("ship.shp", file));
    EXPECT_EQ(isLoaded, !ship->fileFault());
    EXPECT_EQ(isLoaded, !ship->g_sSaveName.empty());
    std::string text = (isLoaded ? "" : "refused: " + textOf({*ship->fileFault()})) +
                       events.take() + ' ' + shown(*ship) + '\n' + ship->g_sShipName + '/' +
                       ship->g_sDesignerName + '\n';
    for (const WeapRec& system : ship->systemsAboard()) {
        text += std::to_string(system.amount) + ' ' + std::string(system.name) + '\n';
    }
    for (const RefusedLine& line : ship->refusedLines()) {
        text += "not taken: " + line.text + '\n';
    }
    try {
        ship->weapChange();  // as the window does that shows it
    } catch (const OverflowError&) {
        text += "cannot be shown\n";
    }
    return text + "---\n" + textOf(checkShipFile(file, *ship, ship->fileFault()));
}

}  // namespace

TEST(ShipCases, OfActs) {
    expectCases("core/golden/ships.txt",
                [](const Case& given) { return Transcript(given).text(); });
}

TEST(ShipCases, OfFiles) {
    expectCases("core/golden/shipFiles.txt",
                [](const Case& given) { return loadedAndChecked(given["file"]); });
}
