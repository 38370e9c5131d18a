#include "Catalogue.h"

#include "checkedArithmetic.h"
#include "strfcns.h"
#include "text.h"

namespace fleetwright {

void Catalogue::loadWeaps(const CatalogueFile& file) {
    m_text = file.read();
    m_records.clear();
    m_records.reserve(m_text->lines().size());
    m_cloakIndex = 0;
    for (const CatalogueLine& line : m_text->lines()) {
        if (line.name == cloakName) {
            m_cloakIndex = narrow<std::int32_t>(std::ssize(m_records));
        }
        m_records.push_back({.name = line.name,
                             .massform = line.massform,
                             .costform = line.costform,
                             .arclist = line.arclist,
                             .icon = line.icon});
    }
    // An empty first line of a ship file goes on with what the last cutting has left.
    leaveForStrTok(m_records.empty() ? std::string_view() : m_records.back().icon);
}

}  // namespace fleetwright
