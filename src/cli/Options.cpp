#include "Options.h"

#include "TextFile.h"
#include "applicationFolder.h"
#include "capitals.h"
#include "executableFolder.h"

#include <array>
#include <charconv>
#include <functional>
#include <limits>
#include <string_view>

namespace fleetwright {

namespace {

constexpr std::size_t any = std::numeric_limits<std::size_t>::max();

/// A command and the words that it takes besides its options.
struct CommandRow {
    std::string_view name;
    Command command;
    std::string_view words;
    std::size_t least;
    std::size_t most;
    std::string_view help;
};

constexpr auto commandTable = std::to_array<CommandRow>({
    {"report", Command::Report, "SHIP...", 1, any, "Print the report of ships"},
    {"figures", Command::Figures, "SHIP... [--auto-mass]", 1, any,
     "Print the figures of ships, one JSON object a line"},
    {"explain", Command::Explain, "SHIP...", 1, any,
     "Say what cost, damage points and mass left are made of"},
    {"save", Command::Save, "SHIP OUT", 2, 2, "Load a ship and save it as OUT"},
    {"eval", Command::Eval, "FORMULA [NUMBERS]", 1, 1,
     "Work out a mass or cost formula of the catalogue"},
    {"maps", Command::Maps, "[SHIP]", 0, 1,
     "List all maps for sheets, or those that a ship fits on"},
    {"sheet", Command::Sheet, "SHIP... [--map NAME] [-o OUT]", 1, any,
     "Draw the sheets of ships: OUT is a .bmp, .png or .pdf file, or a folder"},
    {"scan", Command::Scan, "OUTLINE... [-o OUT]", 1, any,
     "Make maps from marked outlines; OUT is a file or, for several, a folder"},
    {"check", Command::Check, "[FILE...]", 0, any,
     "Say what is wrong with .dat, .shp and .map files, or with all of the folder"},
    {"unpack", Command::Unpack, "", 0, 0, "Unpack the pictures into the application folder"},
    {"recovered", Command::Recovered, "[NAME OUT]", 0, 2,
     "List designs that were put aside, or write one as OUT"},
});

/// A number that a formula can name, and the option that sets it.
struct NumberRow {
    std::string_view option;
    std::int32_t EvalArguments::*number;
    std::string_view help;
};

constexpr std::array<NumberRow, 6> numberTable = {{
    {"--mass", &EvalArguments::mass, "hull mass"},
    {"--hull", &EvalArguments::hull, "hull type code"},
    {"--ftl", &EvalArguments::ftl, "FTL code"},
    {"--thrust", &EvalArguments::thrust, "thrust"},
    {"--hull-cost", &EvalArguments::hullCost, "cost of the hull"},
    {"--amount", &EvalArguments::amount, "pieces"},
}};

std::string padded(std::string text, std::size_t width) {
    text.resize(std::max(text.size() + 2, width), ' ');
    return text;
}

std::string helpText() {
    std::string text = "Works on FleetWright starship designs without a window.\n"
                       "Usage: fleetwright-cli [--app DIR] COMMAND ...\n\nCommands:\n";
    for (const CommandRow& row : commandTable) {
        text += padded("  " + std::string(row.name) + ' ' + std::string(row.words), 32) +
                std::string(row.help) + '\n';
    }
    text += "\nOptions, before or behind the files; \"--\" ends them:\n" +
            padded("  --app DIR", 32) + "The application folder, by default that of the program\n" +
            padded("  --auto-mass", 32) + "Fit the hull mass to the systems\n" +
            padded("  --help, --version", 32) + "Show this help, or the version\n" +
            padded("  --map NAME", 32) + "The map to draw on, by default the first that fits\n" +
            padded("  -o OUT", 32) +
            "Where to write; by default sheets to SHIP.bmp here, maps to standard output\n" +
            padded("  --paper A4|Letter", 32) + "The paper of a .pdf, by default A4\n" +
            "\nNumbers of eval, with what they are if not given:\n";
    for (const NumberRow& row : numberTable) {
        text += padded("  " + std::string(row.option) + " N", 32) + std::string(row.help) + ", " +
                std::to_string(EvalArguments().*row.number) + '\n';
    }
    return text;
}

std::int32_t numberOf(std::string_view option, std::string_view text) {
    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) {
        throw UsageError(std::string(option) + ": \"" + std::string(text) +
                         "\" is no whole number of 32 bits");
    }
    return number;
}

/// Goes through the command line from left to right.
class Parser {
public:
    Parser(int argc, const char* const* argv) : m_words(argv + 1, argv + argc) {}

    Options parse(const char* argv0) {
        while (m_next < m_words.size() && m_options.answer.empty()) {
            const std::string_view word = m_words[m_next++];
            if (m_isBehindMark || !isOption(word)) {
                takeWord(word);
            } else if (word == "--") {
                m_isBehindMark = true;
            } else {
                takeOption(word);
            }
        }
        if (!m_options.answer.empty()) {
            m_options.command = Command::None;
            return m_options;
        }
        finish();
        m_options.programFolder = executableFolder(argv0);
        if (m_options.appFolder.empty()) {
            m_options.appFolder = applicationFolder(m_options.programFolder);
        }
        return m_options;
    }

private:
    /// A formula may begin with a sign, so that only two of them make an option of eval.
    bool isOption(std::string_view word) const {
        if (m_options.command == Command::Eval) {
            return word.starts_with("--");
        }
        return word.size() > 1 && word.starts_with('-');
    }

    void takeWord(std::string_view word) {
        if (m_row != nullptr) {
            m_options.files.emplace_back(word);
            return;
        }
        for (const CommandRow& row : commandTable) {
            if (row.name == word) {
                m_row = &row;
                m_options.command = row.command;
                return;
            }
        }
        throw UsageError("no command \"" + std::string(word) + '"');
    }

    void takeOption(std::string_view word) {
        const std::size_t equals = word.find('=');
        const std::string_view name = word.substr(0, equals);
        const auto value = [&]() -> std::string_view {
            if (equals != std::string_view::npos) {
                return word.substr(equals + 1);
            }
            if (m_next == m_words.size()) {
                throw UsageError(std::string(name) + " needs a value");
            }
            return m_words[m_next++];
        };
        if (name == "--app") {
            m_options.appFolder = nativePath(value());
            if (m_options.appFolder.empty()) {
                throw UsageError("--app needs a folder");
            }
            return;
        }
        if (name == "-o" &&
            (m_options.command == Command::Scan || m_options.command == Command::Sheet)) {
            m_options.output = value();
            if (m_options.output.empty()) {
                throw UsageError("-o needs a file or a folder");
            }
            return;
        }
        for (const NumberRow& row : numberTable) {
            if (m_options.command == Command::Eval && row.option == name) {
                m_options.evalArguments.*row.number = numberOf(name, value());
                return;
            }
        }
        if (m_options.command == Command::Sheet && takeSheetOption(name, value)) {
            return;
        }
        if (word == "--auto-mass" && m_options.command == Command::Figures) {
            m_options.autoMass = true;
        } else if (word == "--help" || word == "-h") {
            m_options.answer = helpText();
        } else if (word == "--version") {
            m_options.answer = "FleetWright " FLEETWRIGHT_VERSION "\n";
        } else {
            throw UsageError("unknown option " + std::string(word));
        }
    }

    bool takeSheetOption(std::string_view name, const std::function<std::string_view()>& value) {
        if (name == "--map") {
            m_options.mapName = value();
        } else if (name == "--paper") {
            const std::string paper = toCapitals(value());
            if (paper != "A4" && paper != "LETTER") {
                throw UsageError("--paper is A4 or Letter");
            }
            m_options.paper = paper == "A4" ? Paper::A4 : Paper::Letter;
        } else {
            return false;
        }
        return true;
    }

    /// What `-o` names: an ending says that it is a file, unless there is a folder of that name.
    void finishSheet() {
        const std::filesystem::path out = nativePath(m_options.output);
        std::error_code ignored;
        if (!out.has_extension() || std::filesystem::is_directory(out, ignored)) {
            return;
        }
        const std::optional<std::string> format = sheetFormat(m_options.output);
        if (!format) {
            throw UsageError("-o: a sheet is a .bmp, .png or .pdf file: " + m_options.output);
        }
        m_options.sheetOut = format == "pdf" ? SheetOut::Document : SheetOut::Picture;
        if (m_options.sheetOut == SheetOut::Picture && m_options.files.size() > 1) {
            throw UsageError("-o: several sheets need a folder or a .pdf file");
        }
    }

    void finish() {
        if (m_row == nullptr) {
            throw UsageError("no command");
        }
        if (m_options.files.size() < m_row->least) {
            throw UsageError("too few words for " + std::string(m_row->name) + ' ' +
                             std::string(m_row->words));
        }
        if (m_options.files.size() > m_row->most) {
            throw UsageError("one too many: " + m_options.files[m_row->most]);
        }
        if (m_options.command == Command::Sheet) {
            finishSheet();
        } else if (m_options.command == Command::Eval) {
            m_options.formula = m_options.files.front();
            m_options.files.clear();
        } else if (m_options.command == Command::Recovered && m_options.files.size() == 1) {
            throw UsageError("recovered needs a NAME and an OUT");
        } else if (m_options.files.size() == 2 && (m_options.command == Command::Save ||
                                                   m_options.command == Command::Recovered)) {
            m_options.saveName = m_options.files.back();
            m_options.files.pop_back();
        }
    }

    std::vector<std::string_view> m_words;
    std::size_t m_next = 0;
    bool m_isBehindMark = false;
    const CommandRow* m_row = nullptr;
    Options m_options;
};

}  // namespace

std::optional<std::string> sheetFormat(std::string_view file) {
    for (const char* const format : {"bmp", "png", "pdf"}) {
        if (toCapitals(file).ends_with('.' + toCapitals(format))) {
            return format;
        }
    }
    return std::nullopt;
}

Options readOptions(int argc, const char* const* argv) {
    return Parser(argc, argv).parse(argv[0]);
}

}  // namespace fleetwright
