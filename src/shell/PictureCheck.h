#pragma once

#include "Fault.h"
#include "Raster.h"

#include <filesystem>
#include <map>
#include <optional>
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
        All,    ///< also pictures that were cut short, of which decoders show what there is
    };

    /// `pictures` decodes; it outlives the check.
    PictureCheck(const std::filesystem::path& folder, PictureFiles& pictures, Depth depth = All);

    /// The pictures that the records of a catalogue name, each with the line of its record: those
    /// that are missing, that cannot be read or that have another size than systems have.
    std::vector<Fault> checkCatalogue(const CatalogueText& catalogue);

    /// The pictures that sheets need besides those, and the pictures that neither they nor the
    /// catalogues checked before make use of.
    std::vector<PictureFault> checkRest();

private:
    /// A file and whether anything needs it.
    struct Entry {
        std::filesystem::path file;
        bool isUsed = false;
    };

    Entry* find(std::string_view name);
    Raster read(const std::filesystem::path& file) const;
    bool isReadable(const std::filesystem::path& file) const;
    std::optional<std::string> systemPictureFault(const std::filesystem::path& file) const;

    std::filesystem::path m_folder;
    PictureFiles& m_pictures;
    Depth m_depth;
    std::map<std::string, Entry> m_entries;  // by name in capitals
};

}  // namespace fleetwright
