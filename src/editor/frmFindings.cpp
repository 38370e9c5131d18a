#include "frmFindings.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace fleetwright {

frmFindings::frmFindings(std::function<void(std::size_t)> goTo)
    : Form({.name = "frmFindings", .caption = "Findings", .width = 9150, .height = 3810}),
      m_goTo(std::move(goTo)) {
    lvFindings.addColumn("Finding", 6000);
    lvFindings.addColumn("Where", 2500);
    lvFindings.onDblClick = [this] { cmdGoTo_Click(); };
    lvFindings.rowToolTip = [](const ListView::Row& row) { return row.text + '\n' + row.subItem; };
    setFindings({});
}

void frmFindings::setFindings(std::vector<ListView::Row> findings) {
    ListView::Content content{std::move(findings), {}};
    if (!content.rows.empty()) {
        const auto& rows = lvFindings.rows();
        const std::size_t selected = lvFindings.selected().value_or(0);
        const auto same = selected < rows.size() ? std::ranges::find(content.rows, rows[selected])
                                                 : content.rows.end();
        content.selected =
            same == content.rows.end()
                ? std::min(selected, content.rows.size() - 1)
                : static_cast<std::size_t>(std::distance(content.rows.begin(), same));
    }
    const std::size_t count = content.rows.size();
    lblAbout.setCaption(count == 0 ? "Nothing is wrong with this design."
                        : count == 1
                            ? "1 thing is wrong with this design:"
                            : std::to_string(count) + " things are wrong with this design:");
    cmdGoTo.setEnabled(count != 0);
    lvFindings.setContent(std::move(content));
}

void frmFindings::cmdGoTo_Click() {
    if (const auto selected = lvFindings.selected()) {
        m_goTo(*selected);
    }
}

}  // namespace fleetwright
