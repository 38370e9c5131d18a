#include "MainWindow.h"

#include "Hands.h"
#include "TemporaryFolder.h"
#include "runTool.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <stdexcept>

namespace fleetwright {

namespace {

constexpr const char* list = "Systems aboard";

/// The figures as the window calls them, and as the tool does.
const std::map<std::string, std::string> figureNames = {
    {"Mass", "mass"},
    {"Cost", "cost"},
    {"Damage points", "dp"},
    {"Damage rows", "damRows"},
    {"Damage control parties", "dcp"},
    {"Fire controls", "fcs"},
    {"Class", "class"},
    {"Designation", "relSize"},
};

std::string shipFile(const Design& design) {
    std::string text = "Mass: " + std::to_string(design.mass) +
                       "\nThrust: " + std::to_string(design.thrust) + "\nType: " + design.type +
                       "\nFTL: " + design.ftl + '\n';
    if (!design.streamlining.empty()) {
        text += "Streamlining: " + design.streamlining + '\n';
    }
    if (!design.armor.empty()) {
        text += "Armor: " + design.armor + '\n';
    }
    for (const auto& [name, amount] : design.systems) {
        text += "System: " + name + ", " + std::to_string(amount) + '\n';
    }
    return text;
}

std::string toText(const nlohmann::json& value) {
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string toText(const Shown& shown) {
    std::string text;
    for (const auto& [name, value] : shown) {
        text.append("  ").append(name).append(": ").append(value).append("\n");
    }
    return text;
}

/// The label behind another one, which names it on the screen.
std::string labelBehind(const Element& part, const std::string& label) {
    const std::vector<std::string> labels = part.names("label");
    const auto found = std::find(labels.begin(), labels.end(), label);
    return found == labels.end() || found + 1 == labels.end() ? std::string() : *(found + 1);
}

}  // namespace

Shown expectedOf(const Design& design) {
    const TemporaryFolder folder;
    return expectedOf(folder.write("ship.shp", shipFile(design)), design.isAutoMass);
}

Shown expectedOf(const std::filesystem::path& shipFile, bool isAutoMass) {
    std::vector<std::string> arguments = {"figures", shipFile};
    if (isAutoMass) {
        arguments.emplace_back("--auto-mass");
    }
    const ToolRun run = runTool("/", arguments);
    if (run.status != 0) {
        throw std::runtime_error("the tool: " + run.errors);
    }
    const nlohmann::json figures = nlohmann::json::parse(run.output);
    Shown shown;
    for (const auto& [name, key] : figureNames) {
        shown[name] = toText(figures.at(key));
    }
    shown["Mass left"] = toText(figures.at("massLeft"));
    for (const nlohmann::json& system : figures.at("systems")) {
        shown["aboard: " + toText(system.at("name"))] = toText(system.at("amount"));
    }
    return shown;
}

Element MainWindow::getIn(const std::string& part, const std::string& role,
                          const std::string& name) const {
    return waitForElement(role + " \"" + name + "\" in \"" + part + '"',
                          [&]() -> std::optional<Element> {
                              for (const char* const kind : {"panel", "tree"}) {
                                  if (const auto whole = window().find(kind, part)) {
                                      return whole->find(role, name);
                                  }
                              }
                              return std::nullopt;
                          });
}

Shown MainWindow::shown() const {
    const Element all = window();
    Shown shown;
    for (const auto& [name, key] : figureNames) {
        const auto figure = all.find("text", name);
        shown[name] = figure ? figure->text() : "";
    }
    if (const auto mass = all.find("panel", "Mass")) {
        shown["Mass left"] = labelBehind(*mass, "Mass Left");
    }
    if (const auto rows = all.find("tree", list)) {
        const std::vector<std::string> cells = rows->names("table cell");
        for (std::size_t i = 0; i + 1 < cells.size(); i += 2) {
            shown["aboard: " + cells[i]] = cells[i + 1];
        }
    }
    return shown;
}

void MainWindow::waitFor(const Design& design) const {
    waitUntilShown(expectedOf(design));
}

void MainWindow::waitForShip(const std::filesystem::path& file) const {
    waitUntilShown(expectedOf(file));
}

void MainWindow::load(const std::filesystem::path& file) const {
    waitUntilActive();
    press({"ctrl+l"});
    chooseFile("Open", file);
    waitForShip(file);
}

namespace {

/// What stands right inside a window, below the layers that let it scroll.
Element inside(const Element& window) {
    Element layer = window.find("filler").value();
    for (std::vector<Element> parts = layer.children();
         parts.size() == 1 && parts.front().role() == "filler"; parts = layer.children()) {
        layer = parts.front();
    }
    return layer;
}

}  // namespace

std::string MainWindow::waitForStatus(const std::string& begin) const {
    std::string text;
    fleetwright::waitFor("the status \"" + begin + '"', [&] {
        const std::vector<std::string> labels = inside(window()).names("label");
        text = labels.empty() ? std::string() : labels.back();  // the lowest one
        return text.starts_with(begin);
    });
    return text;
}

void MainWindow::choose(const std::string& menu, const std::string& entry) const {
    click("menu item", menu);
    fleetwright::click(get("menu item", entry));
}

void MainWindow::waitUntilShown(const Shown& expected) const {
    try {
        fleetwright::waitFor("the figures of the design", [&] { return shown() == expected; });
    } catch (const std::exception& error) {
        throw std::runtime_error("wanted:\n" + toText(expected) + "shown:\n" + toText(shown()) +
                                 error.what());
    }
}

}  // namespace fleetwright
