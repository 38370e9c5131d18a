#pragma once

#include "Options.h"

#include <cstddef>
#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace fleetwright {

/// Exit statuses of the tool.
enum ExitStatus : int { Done = 0, SomeRefused = 1, WrongUsage = 2 };

/// An option of a command.
struct OptionRow {
    std::string_view name;            ///< "--map" or "-o"
    std::string_view value = {};      ///< its value in the help, "A4|Letter" for a choice; or none
    std::string_view help = {};       ///< one line
    std::string_view byDefault = {};  ///< its value where it is not given
    /// Throws UsageError if the value cannot be meant.
    void (*check)(std::string_view option, const std::string& value) = nullptr;
};

/// A command: all that is known of it. The parser, the help, the manual page and the completion of
/// the shell are made from these rows. Each stands at the end of its command's file, which
/// CMakeLists.txt names; a row `xyzCommand` in `xyzCommand.cpp` is all that a command needs.
struct CommandRow {
    static constexpr std::size_t any = std::numeric_limits<std::size_t>::max();

    std::string_view name;
    std::string_view words = {};  ///< what it takes, as the help shows it
    std::size_t least = 0;        ///< so many words besides the options
    std::size_t most = 0;
    bool takesSigned = false;  ///< whether its words may begin with a single "-"
    std::span<const OptionRow> options = {};
    std::string_view help = {};     ///< one line
    std::string_view details = {};  ///< sentences for whoever asks for more
    /// Throws UsageError for what no single option shows.
    void (*check)(const Options& options) = nullptr;
    /// Prints results to standard output and what it refuses to standard error, and returns an
    /// ExitStatus. A catalogue that cannot be read is thrown as FileError.
    int (*run)(const Options& options) = nullptr;
};

using CommandRows = std::span<const CommandRow* const>;

/// The commands of this tool, in the order of the help.
CommandRows commandRows();

}  // namespace fleetwright
