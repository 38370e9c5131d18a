#include "Window.h"

#include "Hands.h"
#include "TemporaryFolder.h"
#include "runTool.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <stdexcept>
#include <vector>

namespace fleetwright {

Window::Window(std::string title) : m_title(std::move(title)) {
    waitUntilActive();
}

Element Window::window() const {
    return waitForElement(m_title, [this] { return windowOnScreen(m_title); });
}

Element Window::get(const std::string& role, const std::string& name,
                    const std::string& part) const {
    return waitForElement(role + " \"" + name + "\" in \"" + part + '"', [&] {
        const Element all = window();
        const auto panel = part.empty() ? std::optional(all) : all.find("panel", part);
        const auto whole = panel ? panel : all.find("tree", part);
        return whole ? whole->find(role, name) : std::nullopt;
    });
}

void Window::click(const std::string& role, const std::string& name) const {
    waitUntilActive();
    fleetwright::click(get(role, name));
}

void Window::waitUntil(const std::string& role, const std::string& name, AtspiStateType state,
                       bool isSo) const {
    fleetwright::waitFor(role + " \"" + name + "\" to change its state",
                         [&] { return get(role, name).is(state) == isSo; });
}

void Window::waitForText(const std::string& role, const std::string& name,
                         const std::string& text) const {
    fleetwright::waitFor('"' + name + "\" to hold " + text,
                         [&] { return get(role, name).text() == text; });
}

void Window::waitUntilActive() const {
    waitForKeyboard(m_title);
}

void Window::waitUntilGone() const {
    fleetwright::waitFor('"' + m_title + "\" to go", [this] { return !windowOnScreen(m_title); });
}

void Window::tabTo(const std::string& role, const std::string& name) const {
    constexpr int mostStops = 60;
    for (int i = 0; i < mostStops && !get(role, name).is(ATSPI_STATE_FOCUSED); ++i) {
        press("Tab");
    }
    waitUntil(role, name, ATSPI_STATE_FOCUSED);
}

namespace {

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

std::string toText(const nlohmann::json& value) {
    return value.is_string() ? value.get<std::string>() : value.dump();
}

}  // namespace

Design newDesign() {
    return {{"Mass", "2"}, {"Thrust", "2"}, {"Type", "Warship"}, {"FTL", "Normal"}};
}

Shown expectedOf(const Design& design, bool isAutoMass) {
    std::string text;
    for (const auto& [name, value] : design) {
        text.append(name).append(name.starts_with("System") ? ", " : ": ");
        text.append(value).append("\n");
    }
    const TemporaryFolder folder;
    return expectedOf(std::filesystem::path(folder.write("ship.shp", text)), isAutoMass);
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
    for (const nlohmann::json& system : figures.at("systems")) {
        shown["aboard: " + toText(system.at("name"))] = toText(system.at("amount"));
    }
    return shown;
}

Shown MainWindow::shown() const {
    const Element all = window();
    Shown shown;
    // In one walk, since each element that is passed has to be asked what it is.
    all.find("text", [&](const Element& each) {
        if (const std::string name = each.name(); figureNames.contains(name)) {
            shown[name] = each.text();
        }
        return shown.size() == figureNames.size();
    });
    if (const auto rows = all.find("tree", "Systems aboard")) {
        std::vector<Element> cells = rows->children();
        std::erase_if(cells, [](const Element& each) { return each.role() != "table cell"; });
        for (std::size_t i = 0; i + 1 < cells.size(); i += 2) {
            shown["aboard: " + cells[i].name()] = cells[i + 1].name();
        }
    }
    return shown;
}

void MainWindow::waitFor(const Shown& expected) const {
    try {
        fleetwright::waitFor("the figures of the design", [&] { return shown() == expected; });
    } catch (const std::exception& error) {
        throw std::runtime_error("wanted " + testing::PrintToString(expected) + "\nshown " +
                                 testing::PrintToString(shown()) + '\n' + error.what());
    }
}

void MainWindow::load(const std::filesystem::path& file) const {
    waitUntilActive();
    press("ctrl+l");
    chooseFile("Open", file);
    waitFor(expectedOf(file));
}

void MainWindow::choose(const std::string& menu, const std::string& entry) const {
    click("menu item", menu);
    fleetwright::click(get("menu item", entry));
}

}  // namespace fleetwright
