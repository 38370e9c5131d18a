#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
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
    Check,
    Unpack,
    Recovered
};

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
    std::vector<std::string> files;  ///< as given; of `save` and `recovered` only the first
    std::string saveName;            ///< of `save` and `recovered`: the file to write
    std::string output;              ///< of `scan`: where the results go; empty if not given
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

/// Reads the command line. Throws UsageError.
Options readOptions(int argc, const char* const* argv);

}  // namespace fleetwright
