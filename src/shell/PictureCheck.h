#pragma once

#include "Fault.h"
#include "Raster.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class CatalogueText;
class PictureFiles;

/// What is wrong with a file of the folder of pictures.
struct PictureFault {
    std::filesystem::path file;
    Fault fault;
};

/// Looks at the folder of pictures as the program will: names count without regard to case.
class PictureCheck {
public:
    /// How much is looked for.
    enum Depth {
        Start,  ///< what keeps the program from starting
        All,    ///< what a check of the catalogue itself does not say
    };

    /// `pictures` decodes; it outlives the check.
    PictureCheck(const std::filesystem::path& folder, PictureFiles& pictures, Depth depth = All);

    /// The pictures that the records of a catalogue name, each with the line of its record: those
    /// that are missing, that lie elsewhere, that cannot be read or that have another size than
    /// systems have. Throws FileError if something else than a picture fails.
    std::vector<Fault> checkCatalogue(const CatalogueText& catalogue);

    /// The pictures that sheets need besides those, and the pictures that neither they nor the
    /// catalogues checked before make use of.
    std::vector<PictureFault> checkRest();

private:
    void noteUse(const std::filesystem::path& file);
    std::optional<std::string> readingFault(const std::filesystem::path& file,
                                            Raster& picture) const;
    std::optional<std::string> systemPictureFault(std::string_view name);

    std::filesystem::path m_folder;
    PictureFiles& m_pictures;
    Depth m_depth;
    std::set<std::string> m_used;  // names in capitals, from the folder on
};

}  // namespace fleetwright
