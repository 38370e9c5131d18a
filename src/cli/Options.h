#pragma once

#include "Pages.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

enum class Command {
    None,
    Report,
    Figures,
    Save,
    Eval,
    Explain,
    Maps,
    Scan,
    Sheet,
    Check,
    Unpack,
    Recovered
};

/// Where sheets go: a file each in a folder, one picture file, one document for all of them.
enum class SheetOut { Folder, Picture, Document };

/// The numbers that a formula on the command line is worked out with.
struct EvalArguments {
    std::int32_t mass = 2;
    std::int32_t hull = 1;
    std::int32_t ftl = 1;
    std::int32_t thrust = 2;
    std::int32_t hullCost = 4;
    std::int32_t amount = 1;
};

/// What the command line asks for.
struct Options {
    Command command = Command::None;
    std::filesystem::path appFolder;
    std::vector<std::string> files;       ///< as given; of `save` and `recovered` only the first
    std::string saveName;                 ///< of `save` and `recovered`: the file to write
    std::filesystem::path programFolder;  ///< where the tool itself is
    std::string mapName;                  ///< of `sheet`: the map; empty: the first one offered
    std::string output;  ///< of `scan` and `sheet`: where the results go; empty if not given
    SheetOut sheetOut = SheetOut::Folder;
    Paper paper = Paper::A4;
    bool autoMass = false;
    std::string formula;
    EvalArguments evalArguments;
    std::string answer;  ///< with Command::None: the help or version asked for
};

/// The command line itself is wrong; `what()` says how.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The format that the ending of a sheet's file means: "bmp", "png" or "pdf".
std::optional<std::string> sheetFormat(std::string_view file);

/// Reads the command line. Throws UsageError.
Options readOptions(int argc, const char* const* argv);

}  // namespace fleetwright
