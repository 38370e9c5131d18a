#include "FleetHeadPanel.h"

#include <optional>
#include <string>
#include <utility>

namespace fleetwright {

namespace {

FleetField::Rules textRules(const std::string& name, const FleetDocument& document,
                            std::string Fleet::* text) {
    return {.name = name,
            .read = [&document, text] { return document.fleet().*text; },
            .write = [text](Fleet& fleet, std::string typed) { fleet.*text = std::move(typed); },
            .held = [](const std::string& typed) { return std::optional(linesIn(typed)); }};
}

}  // namespace

FleetHeadPanel::FleetHeadPanel(const FleetContext& context)
    : FleetPart(context),
      m_name(context, txtFleetName, textRules("Fleet Name", document(), &Fleet::name)),
      m_player(context, txtPlayer, textRules("Player", document(), &Fleet::player)),
      m_limit(context, txtPointsLimit,
              {.name = "Points Limit",
               .read =
                   [this] {
                       const std::optional<std::int32_t>& limit = fleet().pointsLimit;
                       return limit ? std::to_string(*limit) : std::string();
                   },
               .write =
                   [](Fleet& fleet, const std::string& typed) {
                       fleet.pointsLimit =
                           typed.empty() ? std::nullopt : std::optional(std::stoi(typed));
                   },
               .held =
                   [](const std::string& typed) {
                       return typed.empty() ? typed : numberText(typed, limitRange);
                   },
               .range = limitRange}),
      m_notes(context, txtFleetNotes, textRules("Fleet Notes", document(), &Fleet::notes)) {}

void FleetHeadPanel::show() {
    m_name.show();
    m_player.show();
    m_limit.show();
    m_notes.show();
}

void FleetHeadPanel::place(const Place& notes) {
    fraFleetNotes.setPlace(notes);
    txtFleetNotes.setPlace({120, 300, notes.width - 240, notes.height - 420});
}

}  // namespace fleetwright
