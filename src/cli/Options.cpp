#include "Options.h"

#include "TextFile.h"
#include "executableFolder.h"

#include <CLI/CLI.hpp>

#include <charconv>

namespace fleetwright {

namespace {

constexpr const char* description = "Works on FleetWright starship designs without a window.";

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

/// The whole command line. One function a command, so that the table of commands stays a table.
class Parser {
public:
    Parser() {
        m_app.require_subcommand(1, 1);
        m_app.set_help_flag("-h,--help", "Show this help");
        m_app.set_version_flag("--version", "FleetWright " FLEETWRIGHT_VERSION);
        m_app.add_option("--app", m_appFolder, "The application folder, by default the tool's own")
            ->type_name("DIR");
        m_app.allow_extras();
        addReport();
        addFigures();
        addExplain();
        addSave();
        addEval();
        addCheck();
        add(Command::Unpack, "unpack", "Unpack the pictures into the application folder");
    }

    Options parse(int argc, const char* const* argv) {
        try {
            m_app.parse(argc, argv);
        } catch (const CLI::CallForHelp&) {
            m_options.answer = m_app.help();
            return m_options;
        } catch (const CLI::CallForVersion& version) {
            m_options.answer = std::string(version.what()) + '\n';
            return m_options;
        } catch (const CLI::ParseError& error) {
            throw UsageError(error.what());
        }
        takeRest();
        m_options.appFolder =
            m_appFolder.empty() ? executableFolder(argv[0]) : nativePath(m_appFolder);
        return m_options;
    }

private:
    CLI::App* add(Command command, const std::string& name, const std::string& help) {
        CLI::App* const subcommand = m_app.add_subcommand(name, help);
        subcommand->fallthrough();
        subcommand->set_help_flag("-h,--help", "Show this help");
        subcommand->callback([this, command] { m_options.command = command; });
        return subcommand;
    }

    void addShips(CLI::App* command) {
        command->add_option("SHIP", m_options.files, "Ship files")->required()->type_name("");
    }

    void addReport() { addShips(add(Command::Report, "report", "Print the report of ships")); }

    void addFigures() {
        CLI::App* const command =
            add(Command::Figures, "figures", "Print the figures of ships, one JSON object a line");
        addShips(command);
        command->add_flag("--auto-mass", m_options.autoMass, "Fit the hull mass to the systems");
    }

    void addExplain() {
        addShips(add(Command::Explain, "explain",
                     "Say what cost, damage points and mass left are made of"));
    }

    void addSave() {
        CLI::App* const command = add(Command::Save, "save", "Load a ship and save it as OUT");
        command->add_option("SHIP", m_ship, "Ship file")->required()->type_name("");
        command->add_option("OUT", m_options.saveName, "File to write")->required()->type_name("");
    }

    void addEval() {
        CLI::App* const command =
            add(Command::Eval, "eval", "Work out a mass or cost formula of the catalogue");
        m_formula = command->add_option("FORMULA", m_options.formula, "The formula, one argument")
                        ->type_name("");
        EvalArguments& arguments = m_options.evalArguments;
        addNumber(*command, "--mass", arguments.mass, "Hull mass");
        addNumber(*command, "--hull", arguments.hull, "Hull type code");
        addNumber(*command, "--ftl", arguments.ftl, "FTL code");
        addNumber(*command, "--thrust", arguments.thrust, "Thrust");
        addNumber(*command, "--hull-cost", arguments.hullCost, "Hull cost");
        addNumber(*command, "--amount", arguments.amount, "Pieces");
    }

    void addCheck() {
        CLI::App* const command =
            add(Command::Check, "check",
                "Say what is wrong with files, or with all of the application folder");
        command->add_option("FILE", m_options.files, "Catalogue (.dat) and ship files")
            ->type_name("");
    }

    /// What no option and no command has taken. A formula may begin with a sign, which looks like
    /// an option.
    void takeRest() {
        std::vector<std::string> rest = m_app.remaining(true);
        std::erase(rest, "--");
        if (m_options.command == Command::Eval && m_formula->count() == 0) {
            if (rest.empty()) {
                throw UsageError("FORMULA is required");
            }
            if (rest.front().rfind("--", 0) != 0) {
                m_options.formula = rest.front();
                rest.erase(rest.begin());
            }
        }
        if (!rest.empty()) {
            throw UsageError("not understood: " + rest.front());
        }
        if (m_options.command == Command::Save) {
            m_options.files = {m_ship};
        }
    }

    CLI::App m_app{description, "fleetwright-cli"};
    std::string m_appFolder;
    std::string m_ship;
    CLI::Option* m_formula = nullptr;
    Options m_options;
};

}  // namespace

Options readOptions(int argc, const char* const* argv) {
    return Parser().parse(argc, argv);
}

}  // namespace fleetwright
