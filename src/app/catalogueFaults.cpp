#include "catalogueFaults.h"

#include "CatalogueCheck.h"
#include "Error.h"
#include "PictureCheck.h"
#include "TextFile.h"

#include <algorithm>

namespace fleetwright {

std::string catalogueFaults(const std::filesystem::path& appFolder, PictureFiles* pictures) {
    constexpr std::size_t most = 10;
    const std::filesystem::path file = appFolder / "weaps.dat";
    std::vector<Fault> faults;
    try {
        const std::string catalogue = readTextFile(file);
        faults = checkCatalogue(catalogue, CatalogueCheck::Start);
        if (pictures != nullptr) {
            PictureCheck check(appFolder / "images", *pictures, PictureCheck::Start);
            for (Fault& fault : check.checkCatalogue(catalogue)) {
                faults.push_back(std::move(fault));
            }
        }
        sortByLine(faults);
    } catch (const FileError&) {
        return {};
    }
    std::string text;
    for (std::size_t i = 0; i < std::min(faults.size(), most); ++i) {
        text += complaint(file.string(), faults[i]) + '\n';
    }
    return text;
}

}  // namespace fleetwright
