#pragma once

#include "Label.h"
#include "ListView.h"
#include "Panel.h"
#include "TreeView.h"
#include "controlArray.h"

#include <array>

namespace fleetwright {

/// What one piece of the system that is selected in the tree (index 0), and all pieces of the row
/// that is selected in the list (index 1), weigh and cost on this ship.
class PreviewPanel : public Panel {
public:
    PreviewPanel(const PanelContext& context, TreeView& tvWeapons, ListView& lvCurrentWeapons);

    /// Shows both; `row` is the row of the list. What cannot be previewed stays as it was, without
    /// a word, but for a row that has gone.
    void show(std::optional<std::size_t> row);
    void clear(std::size_t index);

    std::array<Label, 4> lblWeapNfo = controlArray<Label, 4>([this](int index) {
        constexpr std::array<int, 4> lefts = {6825, 8925, 2625, 4725};
        return Label(form(), {.name = "lblWeapNfo" + std::to_string(index),
                              .place = {lefts[static_cast<std::size_t>(index)], 7455, 840, 330},
                              .caption = index % 2 == 0 ? "Mass" : "Cost"});
    });
    std::array<Label, 2> lblWeapMass = controlArray<Label, 2>(
        [this](int index) { return value("Mass", index, index == 0 ? 7770 : 3570); });
    std::array<Label, 2> lblWeapCost = controlArray<Label, 2>(
        [this](int index) { return value("Cost", index, index == 0 ? 9765 : 5565); });

private:
    Label value(const std::string& what, int index, int left);

    void tvWeapons_Click();
    void lvCurrentWeapons_Click();
    void previewNode();
    void previewRow(std::size_t row);
    void preview(std::size_t index, const std::string& name, std::int32_t amount);

    const TreeView& m_tree;
    const ListView& m_list;
    std::string m_shownRow;  ///< the key of the row that the labels tell of
};

}  // namespace fleetwright
