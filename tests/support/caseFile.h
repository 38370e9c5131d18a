#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

/// A case of a file of cases: texts under their names.
struct Case {
    std::string title;
    std::vector<std::pair<std::string, std::string>> texts;

    /// The text of this name; empty if there is none. Its last line has no end.
    std::string operator[](const std::string& name) const;
};

/// The lines of a text.
std::vector<std::string> linesOf(const std::string& text);

/// Holds each case of a file below tests/ against what `act` makes of its texts:
///
///     === the title of a case
///     --- the name of a text
///     the text, in any number of lines
///     --- makes
///     what the act is to make of these texts
///
/// If it makes something else, the test fails, and the file as it would have to be is left in the
/// folder of temporary files, to be read and put in the place of the old one.
void expectCases(const std::string& file, const std::function<std::string(const Case&)>& act);

/// What acts are played on.
struct Stage {
    std::function<void(const std::string& act)> act;
    /// What was said since the last call, each with "; " behind it.
    std::function<std::string()> takeLog;
    /// What can be seen, by its names; what no longer can is "gone".
    std::function<std::map<std::string, std::string>()> look;
    std::string folder;  ///< is written as APP
};

/// Plays acts, a line each: "> act", and below it all that was said because of it and all that
/// looks different then.
std::string playActs(const std::string& acts, const Stage& stage);

/// The same on an object whose members are what a stage is made of, on a desktop that writes down
/// what is said, with its files in a folder.
template <typename World>
std::string playIn(World& world, const std::string& acts) {
    return playActs(acts, {.act = [&](const std::string& line) { world.act(line); },
                           .takeLog = [&] { return std::exchange(world.desktop.log, {}); },
                           .look = [&] { return world.look(); },
                           .folder = world.folder.path().string()});
}

/// A text in which a folder is written as APP, and "/" parts what lies below it on every system.
std::string inAppFolder(std::string text, const std::string& folder);

/// The first word of a text, and what stands behind it.
std::pair<std::string, std::string> cut(const std::string& text);

/// A text with something in it replaced wherever it stands.
std::string replaced(std::string text, const std::string& what, const std::string& by);

}  // namespace fleetwright
