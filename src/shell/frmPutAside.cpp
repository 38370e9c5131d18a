#include "frmPutAside.h"

#include "Desktop.h"
#include "text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace fleetwright {

namespace {

ListView::Row rowOf(const RecoveryDesign& design) {
    std::string time = design.about.time;
    std::replace(time.begin(), time.end(), '.', ':');  // which no file's name may hold
    const bool isFleet = design.about.kind == RecoveryKind::Fleet;
    const std::string count = design.about.mass ? std::to_string(*design.about.mass) : "";
    const std::string fleet = count.empty() ? "Fleet" : "Fleet, ships: " + count;
    return {.key = design.name,
            .text = shownText(design.about.ship),
            .subItem = isFleet ? "" : count,
            .moreItems = {shownText(time), (isFleet ? fleet : "") +
                                               (design.isLeftBehind && isFleet ? "; " : "") +
                                               (design.isLeftBehind ? "Left by a crash" : "")}};
}

}  // namespace

frmPutAside::frmPutAside(Services services)
    : Form({.name = "frmPutAside", .width = 9300, .height = 5310}),
      m_services(std::move(services)) {
    lvDesigns.addColumn("Design", 3000);
    lvDesigns.addColumn("Mass", 750);
    lvDesigns.addColumn("Put aside", 2100);
    lvDesigns.addColumn("Note", 2850);
    lvDesigns.onDblClick = [this] { cmdOpen_Click(); };
    lvDesigns.onDelete = [this] { cmdTrash.press(); };
    lvDesigns.rowToolTip = [this](const ListView::Row& row) {
        const auto design = std::find_if(designs.begin(), designs.end(),
                                         [&row](const auto& each) { return each.name == row.key; });
        return design == designs.end() ? "" : shownText(design->file.string());
    };
}

void frmPutAside::Form_Load() {
    chosen.reset();
    const bool isQuestion = isAnyLeftBehind(designs);
    setCaption(isQuestion ? "Designs Left by a Crash" : "Designs Put Aside");
    lblAbout.setCaption(isQuestion ? "The program was cut short. Nothing is lost: open a design "
                                     "that it has put aside, or leave them here."
                                   : "These designs were put aside unsaved. One that you open and "
                                     "save stays here, too.");
    showDesigns(0);
}

void frmPutAside::Form_Unload(bool&) {
    lvDesigns.clear();  // there may be many
}

void frmPutAside::showDesigns(std::size_t selected) {
    ListView::Content content;
    content.rows.reserve(designs.size());
    std::transform(designs.begin(), designs.end(), std::back_inserter(content.rows), rowOf);
    if (!designs.empty()) {
        content.selected = std::min(selected, designs.size() - 1);
    } else {
        lblAbout.setCaption("No design is put aside.");
    }
    lvDesigns.setContent(std::move(content));
    cmdOpen.setEnabled(!designs.empty());
    cmdTrash.setEnabled(!designs.empty());
}

void frmPutAside::cmdOpen_Click() {
    if (lvDesigns.selected()) {
        chosen = lvDesigns.selected();
        unload();
    }
}

void frmPutAside::cmdTrash_Click() {
    const auto selected = lvDesigns.selected();
    if (!selected) {
        return;
    }
    const RecoveryDesign& design = designs[*selected];
    if (!m_services.moveToTrash(design)) {
        m_services.desktop.showMessage(shownText(design.name) +
                                           " cannot be moved to the trash. It stays where it is.",
                                       "", Buttons::Ok, Icon::Information);
        return;
    }
    designs.erase(designs.begin() + static_cast<std::ptrdiff_t>(*selected));
    showDesigns(*selected);
}

}  // namespace fleetwright
