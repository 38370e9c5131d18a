#include "FleetLimitsPanel.h"

#include "FleetField.h"
#include "FleetHeadPanel.h"
#include "designWords.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace fleetwright {

FleetLimitsPanel::FleetLimitsPanel(const FleetContext& context) : FleetPart(context) {
    for (const std::string_view kind : shipKinds()) {
        cboKind.addItem(std::string(kind));
    }
    cboKind.onEnter = [this] { set(); };
    txtMost.onKeyPress = [this](int key) {
        if (key == EnterKey) {
            set();
        }
        return key == EnterKey;
    };
    lvLimits.addColumn("Limit", 2100);
    lvLimits.addColumn("Left", 1200);
    lvLimits.rowToolTip = [](const ListView::Row& row) { return row.text + '\n' + row.subItem; };
    lvLimits.onDelete = [this] { remove(); };
    lvLimits.onClick = [this] { takeSelected(); };
}

void FleetLimitsPanel::show() {
    ListView::Content content;
    for (std::size_t i = 0; i < fleet().limits.size(); ++i) {
        const FleetLimit& limit = fleet().limits[i];
        const bool isPoints = limit.unit == FleetLimit::Unit::Points;
        const std::int64_t left = window().sum.limitsLeft[i];
        content.rows.push_back(
            {.key = limit.kind + (isPoints ? " points" : " ships"),
             .text = std::to_string(limit.most) + ' ' + limit.kind + (isPoints ? ", points" : ""),
             .subItem = left < 0 ? std::to_string(-left) + " too many" : std::to_string(left),
             .isAlarming = left < 0});
    }
    if (!content.rows.empty()) {
        content.selected = std::min(lvLimits.selected().value_or(0), content.rows.size() - 1);
    }
    cmdRemoveLimit.setEnabled(!content.rows.empty());
    if (content.rows != lvLimits.rows() || content.selected != lvLimits.selected()) {
        lvLimits.setContent(std::move(content));
    }
}

void FleetLimitsPanel::place(const Place& frame) {
    constexpr int edge = 120, top = 1080;
    fraLimits.setPlace(frame);
    cboKind.setPlace({930, 300, frame.width - 930 - edge, 330});
    cmdRemoveLimit.setPlace({frame.width - edge - 840, 660, 840, 345});
    cmdSetLimit.setPlace({frame.width - 2 * edge - 2 * 840, 660, 840, 345});
    lvLimits.setPlace({edge, top, frame.width - 2 * edge, frame.height - top - edge});
}

void FleetLimitsPanel::set() {
    const std::optional<std::string> most = numberText(txtMost.text(), limitRange);
    const auto kinds = shipKinds();
    if (!most || std::ranges::find(kinds, cboKind.text()) == kinds.end()) {
        window().say(most ? "Choose the kind of ship that the limit is about"
                          : "Say how many there may be at most");
        return;
    }
    const FleetLimit limit = {cboKind.text(), std::stoi(*most),
                              optPoints.isOn() ? FleetLimit::Unit::Points
                                               : FleetLimit::Unit::Ships};
    window().act({"Limit"}, [&](Fleet& fleet) {
        const auto same = std::ranges::find_if(fleet.limits, [&](const FleetLimit& each) {
            return each.kind == limit.kind && each.unit == limit.unit;
        });
        same == fleet.limits.end() ? fleet.limits.push_back(limit) : void(*same = limit);
    });
}

void FleetLimitsPanel::remove() {
    const auto row = lvLimits.selected();
    if (row && *row < fleet().limits.size()) {
        window().act({"Drop Limit"}, [&](Fleet& fleet) {
            fleet.limits.erase(fleet.limits.begin() + static_cast<std::ptrdiff_t>(*row));
        });
    }
}

/// Offers the selected limit to be changed.
void FleetLimitsPanel::takeSelected() {
    const auto row = lvLimits.selected();
    if (row && *row < fleet().limits.size()) {
        const FleetLimit limit = fleet().limits[*row];
        txtMost.setText(std::to_string(limit.most));
        cboKind.setText(limit.kind);
        (limit.unit == FleetLimit::Unit::Points ? optPoints : optShips).setOn();
    }
}

}  // namespace fleetwright
