#include "catalogueFaults.h"

#include "CatalogueCheck.h"
#include "Error.h"
#include "PictureCheck.h"

#include <algorithm>

namespace fleetwright {

std::string catalogueFaults(const CatalogueFile& file, PictureFiles* pictures) {
    constexpr std::size_t most = 10;
    std::vector<Fault> faults;
    try {
        const std::shared_ptr<const CatalogueText> catalogue = file.read();
        faults = checkCatalogue(*catalogue, CatalogueCheck::Start);
        if (pictures != nullptr) {
            PictureCheck check(file.path().parent_path() / "images", *pictures,
                               PictureCheck::Start);
            for (Fault& fault : check.checkCatalogue(*catalogue)) {
                faults.push_back(std::move(fault));
            }
        }
        sortByLine(faults);
    } catch (const FileError&) {
        return {};
    }
    std::string text;
    for (std::size_t i = 0; i < std::min(faults.size(), most); ++i) {
        text += complaint(file.path().string(), faults[i]) + '\n';
    }
    return text;
}

}  // namespace fleetwright
