#include "SystemsPanel.h"

#include "Desktop.h"
#include "checkedArithmetic.h"
#include "explainShip.h"
#include "text.h"
#include "wholeNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace fleetwright {

SystemsPanel::SystemsPanel(const PanelContext& context, std::function<void()> selectionGone)
    : Panel(context), m_selectionGone(std::move(selectionGone)) {
    lvCurrentWeapons.onDblClick = [this] { lvCurrentWeapons_DblClick(); };
    lvCurrentWeapons.onDelete = lvCurrentWeapons.onDblClick;
    lvCurrentWeapons.onMouseDown = [this](const MousePress& press) {
        lvCurrentWeapons_MouseDown(press);
    };
    lvCurrentWeapons.rowToolTip = [this](const ListView::Row& row) {
        // A screen reader may still ask when the ship has gone.
        return window().g_Ship == nullptr
                   ? std::string()
                   : describeSystem(ship(), row.key, wholeNumber(row.subItem)) +
                         "\n\nDouble-click, or press Delete, to take one away; right-click for "
                         "more";
    };
}

void SystemsPanel::addColumns() {
    const int width = lvCurrentWeapons.place().width;
    lvCurrentWeapons.addColumn("Weapon Name", width / 2);
    lvCurrentWeapons.addColumn("Count", width / 3);
}

void SystemsPanel::show() {
    const std::vector<WeapRec> aboard = ship().systemsAboard();
    for (std::size_t row = lvCurrentWeapons.rows().size(); row-- > 0;) {
        const std::string& key = lvCurrentWeapons.rows()[row].key;
        if (std::none_of(aboard.begin(), aboard.end(),
                         [&](const WeapRec& system) { return system.name == key; })) {
            lvCurrentWeapons.remove(row);
        }
    }
    for (const WeapRec& system : aboard) {
        const std::string count = std::to_string(system.amount);
        if (const auto row = lvCurrentWeapons.find(system.name)) {
            lvCurrentWeapons.setSubItem(*row, count);
        } else {
            lvCurrentWeapons.add(std::string(system.name), std::string(system.name), count);
        }
    }
}

std::vector<std::size_t> SystemsPanel::records() const {
    std::vector<std::size_t> records;
    for (const ListView::Row& row : lvCurrentWeapons.rows()) {
        // A row that the ship is about to refuse may be of another catalogue.
        if (const std::int32_t record = ship().weapNameToIndex(row.key); record != -1) {
            records.push_back(static_cast<std::size_t>(record));
        }
    }
    return records;
}

void SystemsPanel::showRows(const std::vector<std::size_t>& records) {
    const ListView::Content& before = lvCurrentWeapons.content();
    ListView::Content content;
    const std::vector<WeapRec> aboard = ship().systemsAboard();
    const auto& lines = ship().catalogueText()->lines();
    for (const std::size_t record : records) {
        if (record >= lines.size()) {
            continue;
        }
        const std::string_view name = lines[record].name;
        const auto system = std::find_if(aboard.begin(), aboard.end(),
                                         [&](const WeapRec& each) { return each.name == name; });
        if (system != aboard.end()) {
            content.rows.push_back(
                {std::string(name), std::string(name), std::to_string(system->amount)});
        }
    }
    if (before.rows == content.rows) {
        return;
    }
    if (before.selected && !content.rows.empty()) {
        const auto same =
            std::find_if(content.rows.begin(), content.rows.end(), [&](const ListView::Row& row) {
                return row.key == before.rows[*before.selected].key;
            });
        content.selected = same != content.rows.end()
                               ? static_cast<std::size_t>(same - content.rows.begin())
                               : std::min(*before.selected, content.rows.size() - 1);
    }
    lvCurrentWeapons.setContent(std::move(content));
}

void SystemsPanel::AddWeaponRow(const std::string& name, std::int32_t amount) {
    const std::optional<std::size_t> row = lvCurrentWeapons.find(name);
    if (!row) {
        lvCurrentWeapons.add(name, name, std::to_string(amount));
        return;
    }
    const std::int32_t count =
        checkedAdd(wholeNumber(lvCurrentWeapons.rows()[*row].subItem), amount);
    if (count == 0) {
        lvCurrentWeapons.remove(*row);
    } else {
        lvCurrentWeapons.setSubItem(*row, std::to_string(count));
    }
}

/// The row changes first, since the ship's recalculation ends in a refresh that reads it. The name
/// is a copy: its row may go.
void SystemsPanel::changeAmount(const std::string name, std::int32_t change) {
    act([&] {
        const ListView::Content before = lvCurrentWeapons.content();
        std::string selected;
        bool isTaken = false;
        try {
            AddWeaponRow(name, change);
            selected = selectedSystem();
            isTaken = ship().addWeap(name, change);
        } catch (...) {
            lvCurrentWeapons.setContent(before);
            throw;
        }
        if (!isTaken) {
            // AutoMass may have let other acts in, which have changed the list or chosen a row.
            const std::string chosen = selectedSystem();
            lvCurrentWeapons.setContent(before);
            show();
            if (chosen != selected) {
                ListView::Content content = lvCurrentWeapons.content();
                content.selected = lvCurrentWeapons.find(chosen);
                lvCurrentWeapons.setContent(std::move(content));
            }
            if (!lvCurrentWeapons.selected()) {
                m_selectionGone();  // it was on the row of what is no system
            }
        }
    });
}

/// The system of the selected row; nothing if there is none.
std::string SystemsPanel::selectedSystem() const {
    const auto row = lvCurrentWeapons.selected();
    return row ? lvCurrentWeapons.rows()[*row].key : std::string();
}

void SystemsPanel::lvCurrentWeapons_DblClick() {
    if (const auto row = lvCurrentWeapons.selected()) {
        changeAmount(lvCurrentWeapons.rows()[*row].key, -1);
    }
}

void SystemsPanel::lvCurrentWeapons_MouseDown(const MousePress& press) {
    const auto row = lvCurrentWeapons.selected();
    if (press.button != RightButton || !row) {
        return;
    }
    window().say("So many of " + quote(lvCurrentWeapons.rows()[*row].key) + " remain");
    frmSld = std::make_unique<frmAmountSlider>();
    frmSld->iOriginal = wholeNumber(lvCurrentWeapons.rows()[*row].subItem);
    // The fields end at 32767 twips, which a wide screen does not; there the dialog opens as near
    // as they reach.
    const auto place = [](double twips) {
        using Limits = std::numeric_limits<std::int16_t>;
        return static_cast<std::int16_t>(
            std::clamp(std::nearbyint(twips), double{Limits::min()}, double{Limits::max()}));
    };
    frmSld->iX = place(lvCurrentWeapons.place().left + form().left() + press.x);
    frmSld->iY = place(lvCurrentWeapons.place().top + form().top() + press.y);
    m_countChanged =
        frmSld->CountChanged.connect([this](std::int32_t amount) { frmSld_CountChanged(amount); });
    services().desktop.showModal(*frmSld, form());
}

void SystemsPanel::frmSld_CountChanged(std::int32_t amount) {
    if (const auto row = lvCurrentWeapons.selected()) {
        changeAmount(lvCurrentWeapons.rows()[*row].key, -amount);
    }
}

}  // namespace fleetwright
