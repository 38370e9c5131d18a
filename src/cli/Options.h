#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

struct CommandRow;

/// What the command line asks for.
struct Options {
    const CommandRow* command = nullptr;  ///< null where `answer` is all that was asked for
    std::string answer;                   ///< the help or the version
    std::filesystem::path appFolder;
    std::filesystem::path programFolder;  ///< where the tool itself is
    std::vector<std::string> words;       ///< those of the command: files and the like, as given
    std::map<std::string, std::string, std::less<>> values;  ///< of its options, by their names

    /// Whether an option was given.
    bool has(std::string_view option) const { return values.contains(option); }
    /// The value of an option, or else its default.
    std::string value(std::string_view option) const;
};

/// The command line itself is wrong; `what()` says how.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The command line names no command.
class NoCommandError : public UsageError {
public:
    NoCommandError() : UsageError("no command") {}
};

/// Reads the command line, the program's own word in front, of a tool that has these commands.
/// Throws UsageError.
Options readOptions(std::span<const CommandRow* const> commands,
                    const std::vector<std::string>& line);

}  // namespace fleetwright
