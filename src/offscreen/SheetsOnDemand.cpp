#include "SheetsOnDemand.h"

#include "Error.h"
#include "designCode.h"
#include "fleetDocument.h"

#include <algorithm>

namespace fleetwright {

SheetsOnDemand::SheetsOnDemand(std::size_t count, const SheetTools& tools, CatalogueFile catalogue)
    : m_tools(tools), m_screen(tools.appFolder, std::move(catalogue)), m_kept(count) {}

VectorSheet SheetsOnDemand::draw(std::size_t index, const ShipOnScreen& screen) {
    VectorSheet sheet = recordedSheet(screen, m_tools, {});
    if (sheet.shipFile.size() <= longestCodedShip) {
        m_kept[index].code = designCode(sheet.shipFile);
    } else {
        m_kept[index].sheet = std::make_shared<const VectorSheet>(sheet);
    }
    return sheet;
}

std::shared_ptr<const VectorSheet> SheetsOnDemand::at(std::size_t index) {
    const Kept& kept = m_kept[index];
    if (kept.sheet) {
        return kept.sheet;
    }
    const auto known = std::ranges::find(m_last, index, &Drawn::first);
    if (known != m_last.end()) {
        return known->second;
    }
    if (const auto fault = m_screen.load(kept.code)) {
        throw Error(fault->text);
    }
    if (m_last.size() == std::size_t{sheetsToAPage}) {
        m_last.pop_front();
    }
    m_last.emplace_back(index,
                        std::make_shared<const VectorSheet>(recordedSheet(m_screen, m_tools, {})));
    return m_last.back().second;
}

std::string SheetsOnDemand::shipFile(std::size_t index) const {
    const Kept& kept = m_kept[index];
    return kept.sheet ? kept.sheet->shipFile : shipInCode(kept.code);
}

}  // namespace fleetwright
