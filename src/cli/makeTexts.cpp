// Writes what the package holds of the commands besides the tool, made from their rows:
//
//     cli-texts manual TEMPLATE FILE       the manual page
//     cli-texts completion TEMPLATE FILE   what lets bash complete the words of a command line

#include "CommandRow.h"
#include "paths.h"
#include "readFile.h"
#include "saveFile.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

using namespace fleetwright;

/// Hands out the words of a text, which blanks part.
template <typename Take>
void forEachWord(std::string_view text, const Take& take) {
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        take(word);
    }
}

/// What a word of a command's help is in the manual: an option, a placeholder, a file ending, or
/// nothing of these.
std::string manualWord(const CommandRow& row, std::string_view word) {
    if (word.starts_with('-')) {
        return "Fl " + std::string(word.substr(1));
    }
    if (word.starts_with('.') && word.size() > 1) {
        return "Pa " + std::string(word);
    }
    constexpr std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const bool isPlaceholder = word.size() > 1 &&
                               word.find_first_not_of(capitals) == std::string_view::npos &&
                               row.words.find(word) != std::string_view::npos;
    return isPlaceholder ? "Ar " + std::string(word) : "";
}

/// Sentences in the manual's language: each begins a line, and so does whatever has a macro.
std::string manualText(const CommandRow& row, std::string_view text) {
    std::string lines;
    bool isLineBegin = true;
    forEachWord(text, [&](std::string_view word) {
        const std::size_t length = word.find_last_not_of(".,:;") + 1;
        const std::string_view mark = word.substr(length);
        const std::string macro = manualWord(row, word.substr(0, length));
        if (macro.empty()) {
            (lines += isLineBegin ? "" : " ") += word;
        } else {
            (lines += isLineBegin ? "." : "\n.") += macro;
            (lines += mark.empty() ? "" : " ") += mark;
        }
        isLineBegin = !macro.empty() || mark == ".";
        lines += isLineBegin ? "\n" : "";
    });
    return isLineBegin ? lines : lines + ".\n";
}

/// The words that a command takes, "SHIP... [--map NAME]", as arguments of a macro.
std::string manualWords(const CommandRow& row) {
    std::string line;
    forEachWord(row.words, [&](std::string_view word) {
        const bool isBegin = word.starts_with('[');
        const bool isEnd = word.ends_with(']');
        word = word.substr(isBegin ? 1 : 0, word.size() - (isBegin ? 1 : 0) - (isEnd ? 1 : 0));
        const bool isMany = word.ends_with("...");
        word.remove_suffix(isMany ? 3 : 0);
        line += (isBegin ? " Oo " : " ") + manualWord(row, word) + (isMany ? " ..." : "");
        line += isEnd ? " Oc" : "";
    });
    return line;
}

std::string manualEntry(const CommandRow& row) {
    std::string entry = ".It Cm " + std::string(row.name) + manualWords(row) + '\n';
    entry += manualText(row, std::string(row.help) + ". " + std::string(row.details));
    if (row.options.empty()) {
        return entry;
    }
    entry += ".Bl -tag -width Ds -compact\n";
    for (const OptionRow& option : row.options) {
        entry += ".It " + manualWord(row, option.name);
        entry += option.value.empty() ? "\n" : " Ar " + std::string(option.value) + '\n';
        entry += manualText(row, std::string(option.help) +
                                     (option.byDefault.empty() ? "." : "; by default ") +
                                     std::string(option.byDefault));
    }
    return entry + ".El\n";
}

/// The commands in the manual's language.
std::string manualEntries() {
    std::string entries;
    for (const CommandRow* const row : commandRows()) {
        entries += manualEntry(*row);
    }
    return entries;
}

/// A branch of the shell's `case`.
std::string branch(std::string_view pattern, const std::string& words) {
    return "    " + std::string(pattern) + ") words='" + words + "' ;;\n";
}

std::string commandNames() {
    std::string names;
    for (const CommandRow* const row : commandRows()) {
        (names += names.empty() ? "" : " ") += row->name;
    }
    return names;
}

/// For each command a branch with its options.
std::string optionBranches() {
    std::string branches;
    for (const CommandRow* const row : commandRows()) {
        std::string names;
        for (const OptionRow& option : row->options) {
            names.append(option.name) += ' ';
        }
        branches += branch(row->name, names + "--app --help --version");
    }
    return branches;
}

/// For each choice a branch with what there is to choose, and one for all other options with a
/// value.
std::string valueBranches() {
    std::map<std::string_view, std::string> choices;
    std::set<std::string_view> others = {"--app"};
    for (const CommandRow* const row : commandRows()) {
        for (const OptionRow& option : row->options) {
            if (option.value.find('|') != std::string_view::npos) {
                choices[option.name] = option.value;
            } else if (!option.value.empty()) {
                others.insert(option.name);
            }
        }
    }
    std::string branches;
    for (auto& [name, choice] : choices) {
        std::ranges::replace(choice, '|', ' ');
        branches += branch(name, choice);
    }
    std::string pattern;
    for (const std::string_view name : others) {
        pattern.append(pattern.empty() ? "" : " | ").append(name);
    }
    return branches + branch(pattern, "");
}

/// A template with texts, without their last line ends, in place of its marks.
std::string filled(std::string text, const std::map<std::string, std::string>& texts) {
    for (const auto& [mark, replacement] : texts) {
        if (const std::size_t at = text.find(mark); at != std::string::npos) {
            text.replace(at, mark.size(), replacement, 0, replacement.find_last_not_of('\n') + 1);
        }
    }
    return text;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 4) {
            throw std::runtime_error("cli-texts manual|completion TEMPLATE FILE");
        }
        const std::string text = readTextFile(nativePath(argv[2]));
        const bool isManual = std::string_view(argv[1]) == "manual";
        saveFile(nativePath(argv[3]), isManual ? filled(text, {{"%commands%", manualEntries()}})
                                               : filled(text, {{"%commands%", commandNames()},
                                                               {"%options%", optionBranches()},
                                                               {"%values%", valueBranches()}}));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
