#include "helpText.h"

#include <algorithm>
#include <set>
#include <utility>

namespace fleetwright {

namespace {

/// Two columns.
std::string helpLine(const std::string& what, std::string_view help) {
    constexpr std::size_t width = 32;
    std::string line = "  " + what;
    line.resize(std::max(line.size() + 2, width), ' ');
    return line.append(help) + '\n';
}

bool isNumber(const OptionRow& option) {
    return option.value == "N";
}

std::string helpLine(const OptionRow& option) {
    std::string help(option.help);
    if (!option.byDefault.empty()) {
        help.append(isNumber(option) ? ", " : ", by default ").append(option.byDefault);
    }
    const std::string value = option.value.empty() ? "" : ' ' + std::string(option.value);
    return helpLine(std::string(option.name) + value, help);
}

constexpr OptionRow appOption = {
    .name = "--app",
    .value = "DIR",
    .help = "The application folder, by default that of the program",
};

constexpr std::string_view usage = "Usage: fleetwright-cli [--app DIR] ";

/// The sentences of a text, folded to the width of a terminal.
std::string folded(std::string_view text) {
    constexpr std::size_t width = 80;
    std::string lines;
    std::size_t lineBegin = 0;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        if (lines.size() > lineBegin) {
            const bool isFull = lines.size() + 1 + word.size() > lineBegin + width;
            lines += isFull ? '\n' : ' ';
            lineBegin = isFull ? lines.size() : lineBegin;
        }
        lines += word;
    }
    return lines + '\n';
}

}  // namespace

std::string helpText(CommandRows commands) {
    std::string text = "Works on FleetWright starship designs without a window.\n" +
                       std::string(usage) + "COMMAND ...\n\nCommands:\n";
    std::set<std::pair<std::string_view, std::string>> options;  // by their names without dashes
    std::string numbers;
    const auto addOption = [&](std::string_view name, const std::string& line) {
        options.emplace(name.substr(name.find_first_not_of('-')), line);
    };
    addOption(appOption.name, helpLine(appOption));
    addOption("--help",
              helpLine("--help, --version", "Show this help or a command's, or the version"));
    for (const CommandRow* const row : commands) {
        text += helpLine(std::string(row->name) + ' ' + std::string(row->words), row->help);
        bool isFirstNumber = true;
        for (const OptionRow& option : row->options) {
            if (!isNumber(option)) {
                addOption(option.name, helpLine(option));
                continue;
            }
            if (std::exchange(isFirstNumber, false)) {
                numbers += "\nNumbers of " + std::string(row->name) +
                           ", with what they are if not given:\n";
            }
            numbers += helpLine(option);
        }
    }
    text += "\nOptions, before or behind the files; \"--\" ends them:\n";
    for (const auto& [name, line] : options) {
        text += line;
    }
    return text + numbers;
}

std::string helpText(const CommandRow& command) {
    std::string text = std::string(command.help) + ".\n" + std::string(usage) +
                       std::string(command.name) + ' ' + std::string(command.words) + "\n\n";
    if (!command.details.empty()) {
        text += folded(command.details) + '\n';
    }
    text += "Options:\n";
    for (const OptionRow& option : command.options) {
        text += helpLine(option);
    }
    return text + helpLine(appOption) + helpLine("--help", "Show this help");
}

}  // namespace fleetwright
