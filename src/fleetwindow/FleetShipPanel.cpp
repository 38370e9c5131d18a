#include "FleetShipPanel.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

std::string namesText(const FleetShip& ship) {
    std::string text;
    for (const std::string& name : ship.names) {
        text += name + '\n';
    }
    return linesIn(text);
}

std::vector<std::string> namesIn(const std::string& lines) {
    std::vector<std::string> names;
    for (std::size_t at = 0; at < lines.size();) {
        const std::size_t end = std::min(lines.find('\n', at), lines.size());
        names.push_back(lines.substr(at, end - at));
        at = end + 1;
    }
    return names;
}

}  // namespace

FleetShipPanel::FleetShipPanel(const FleetContext& context,
                               std::function<std::optional<std::size_t>()> selected)
    : FleetPart(context), m_selected(std::move(selected)),
      m_count(context, txtCount,
              [this] {
                  FleetField::Rules count = rules(
                      "Count", [](const FleetShip& ship) { return std::to_string(ship.count); },
                      [this](FleetShip& ship, const std::string& typed) {
                          setCount(ship, std::stoi(typed));
                      });
                  count.range = {1, FleetShip::mostCount};
                  count.held = [range = count.range](const std::string& typed) {
                      return numberText(typed, range);
                  };
                  return count;
              }()),
      m_names(context, txtNames,
              rules("Own Names", namesText,
                    [this](FleetShip& ship, const std::string& typed) {
                        ship.names = namesIn(typed);
                        // Who gives a name to one more ship has one more.
                        setCount(ship, std::max(ship.count,
                                                static_cast<std::int32_t>(ship.names.size())));
                    })),
      m_notes(context, txtShipNotes,
              rules(
                  "Notes", [](const FleetShip& ship) { return ship.notes; },
                  [](FleetShip& ship, const std::string& typed) { ship.notes = typed; })) {}

const FleetShip* FleetShipPanel::ship() const {
    const auto place = m_selected();
    return place ? &fleet().ships[*place] : nullptr;
}

FleetField::Rules
FleetShipPanel::rules(const std::string& name, std::function<std::string(const FleetShip&)> read,
                      std::function<void(FleetShip&, const std::string&)> write) const {
    return {.name = name,
            .read =
                [this, read = std::move(read)] {
                    const FleetShip* const selected = ship();
                    return selected == nullptr ? std::string() : read(*selected);
                },
            .write =
                [this, write = std::move(write)](Fleet& fleet, const std::string& typed) {
                    if (m_selected()) {
                        write(shipIn(fleet), typed);
                    }
                },
            .held = [](const std::string& typed) { return std::optional(linesIn(typed)); },
            .about = [this] { return std::to_string(m_selected().value_or(0)); }};
}

/// A number may be typed by way of a smaller one: names that have no ship for a while come back.
void FleetShipPanel::setCount(FleetShip& ship, std::int32_t count) {
    if (ship != m_counted) {
        m_keptNames = ship.names;
    }
    ship.count = std::clamp(count, std::int32_t{1}, FleetShip::mostCount);
    ship.names = m_keptNames;
    ship.names.resize(std::min(ship.names.size(), static_cast<std::size_t>(ship.count)));
    m_counted = ship;
}

void FleetShipPanel::show() {
    fraShip.setEnabled(ship() != nullptr);
    m_count.show();
    m_names.show();
    m_notes.show();
}

void FleetShipPanel::place(const Place& frame) {
    constexpr int edge = 120, top = 975;
    fraShip.setPlace(frame);
    const int half = (frame.width - 3 * edge) / 2, height = frame.height - top - edge;
    txtNames.setPlace({edge, top, half, height});
    txtShipNotes.setPlace({2 * edge + half, top, half, height});
    lblShipNotes.setPlace({2 * edge + half, 720, half, 255});
    lblNames.setPlace({edge, 720, half, 255});
}

void FleetShipPanel::step(int by) {
    if (const FleetShip* const selected = ship()) {
        window().act({"Count", txtCount.name() + (by < 0 ? " less " : " more ") + selected->file},
                     [&](Fleet& fleet) {
                         FleetShip& changed = shipIn(fleet);
                         setCount(changed, changed.count + by);
                     });
    }
}

}  // namespace fleetwright
