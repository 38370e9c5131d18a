#include "Options.h"

#include "TextFile.h"
#include "executableFolder.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <limits>

namespace fleetwright {

namespace {

constexpr const char* description = "Works on FleetWright starship designs without a window.";
constexpr std::size_t any = std::numeric_limits<std::size_t>::max();

/// Strict: no blanks, no fraction, no other base, which the library would let pass.
void addNumber(CLI::App& command, const std::string& name, std::int32_t& number,
               const std::string& help) {
    const std::string standard = std::to_string(number);
    const auto read = [name, &number](const std::string& text) {
        const char* const end = text.data() + text.size();
        const auto result = std::from_chars(text.data(), end, number);
        if (result.ec != std::errc() || result.ptr != end) {
            throw UsageError(name + ": \"" + text + "\" is no whole number of 32 bits");
        }
    };
    command.add_option_function<std::string>(name, read, help + ", " + standard + " if not given")
        ->type_name("N");
}

/// The whole command line. The library reads it up to a "--"; what follows there is files.
class Parser {
public:
    Parser() {
        m_app.require_subcommand(1, 1);
        m_app.set_help_flag("-h,--help", "Show this help");
        m_app.set_version_flag("--version", "FleetWright " FLEETWRIGHT_VERSION);
        m_app.add_option("--app", m_appFolder, "The application folder, by default the tool's own")
            ->type_name("DIR");
        m_app.allow_extras();
        addCommands();
    }

    Options parse(int argc, const char* const* argv) {
        const char* const* const end = argv + argc;
        const char* const* const mark =
            std::find_if(argv, end, [](std::string_view word) { return word == "--"; });
        try {
            m_app.parse(static_cast<int>(mark - argv), argv);
        } catch (const CLI::CallForHelp&) {
            m_options.answer = m_app.help();
            return m_options;
        } catch (const CLI::CallForVersion& version) {
            m_options.answer = std::string(version.what()) + '\n';
            return m_options;
        } catch (const CLI::ParseError& error) {
            throw UsageError(error.what());
        }
        checkExtras();
        if (mark != end) {
            m_words.insert(m_words.end(), mark + 1, end);
        }
        takeWords();
        m_options.appFolder =
            m_appFolder.empty() ? executableFolder(argv[0]) : nativePath(m_appFolder);
        return m_options;
    }

private:
    /// Adds a command that takes from `least` to `most` words, which the help calls `words`.
    CLI::App& add(Command command, const std::string& name, const std::string& words,
                  std::size_t least, std::size_t most, const std::string& help) {
        CLI::App& subcommand = *m_app.add_subcommand(name, help);
        subcommand.fallthrough();
        subcommand.set_help_flag("-h,--help", "Show this help");
        if (most > 0) {
            subcommand.add_option(words, m_words)->type_name("");
        }
        subcommand.callback([=, this] {
            m_options.command = command;
            m_wordNames = words;
            m_least = least;
            m_most = most;
        });
        return subcommand;
    }

    void addCommands() {
        add(Command::Report, "report", "SHIP", 1, any, "Print the report of ships");
        add(Command::Figures, "figures", "SHIP", 1, any,
            "Print the figures of ships, one JSON object a line")
            .add_flag("--auto-mass", m_options.autoMass, "Fit the hull mass to the systems");
        add(Command::Explain, "explain", "SHIP", 1, any,
            "Say what cost, damage points and mass left are made of");
        add(Command::Save, "save", "SHIP OUT", 2, 2, "Load a ship and save it as OUT");
        CLI::App& eval = add(Command::Eval, "eval", "FORMULA", 1, 1,
                             "Work out a mass or cost formula of the catalogue");
        EvalArguments& arguments = m_options.evalArguments;
        addNumber(eval, "--mass", arguments.mass, "Hull mass");
        addNumber(eval, "--hull", arguments.hull, "Hull type code");
        addNumber(eval, "--ftl", arguments.ftl, "FTL code");
        addNumber(eval, "--thrust", arguments.thrust, "Thrust");
        addNumber(eval, "--hull-cost", arguments.hullCost, "Hull cost");
        addNumber(eval, "--amount", arguments.amount, "Pieces");
        add(Command::Check, "check", "FILE", 0, any,
            "Say what is wrong with catalogues (.dat) and ships (.shp), or with all of the "
            "application folder");
        add(Command::Unpack, "unpack", "", 0, 0, "Unpack the pictures into the application folder");
    }

    /// What the library has not understood. A formula may begin with a sign, which looks like an
    /// option to it.
    void checkExtras() {
        for (const std::string& extra : m_app.remaining(true)) {
            const bool isFormula = m_options.command == Command::Eval && extra.rfind("--", 0) != 0;
            if (!isFormula) {
                throw UsageError("not understood: " + extra);
            }
            m_words.push_back(extra);
        }
    }

    void takeWords() {
        if (m_words.size() < m_least) {
            throw UsageError(m_wordNames + " is missing");
        }
        if (m_words.size() > m_most) {
            throw UsageError("one too many: " + m_words[m_most]);
        }
        if (m_options.command == Command::Eval) {
            m_options.formula = m_words.front();
            return;
        }
        m_options.files = m_words;
        if (m_options.command == Command::Save) {
            m_options.saveName = m_words.back();
            m_options.files.pop_back();
        }
    }

    CLI::App m_app{description, "fleetwright-cli"};
    std::string m_appFolder;
    std::vector<std::string> m_words;
    std::string m_wordNames;
    std::size_t m_least = 0;
    std::size_t m_most = 0;
    Options m_options;
};

}  // namespace

Options readOptions(int argc, const char* const* argv) {
    return Parser().parse(argc, argv);
}

}  // namespace fleetwright
