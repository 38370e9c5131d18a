#include "Options.h"

#include "CommandRow.h"
#include "applicationFolder.h"
#include "helpText.h"
#include "paths.h"
#include "text.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>

namespace fleetwright {

namespace {

/// What ends the reading where help or version are asked for.
struct Answer {
    std::string text;
};

/// CLI11 takes "--name=" for "--name". So an empty value is handed to it as a NUL, which no word of
/// a command line can hold.
std::string withMark(const std::string& word) {
    const bool isEmptyValue = word.starts_with("--") && word.find('=') == word.size() - 1;
    return isEmptyValue ? word + '\0' : word;
}

std::string withoutMark(std::string word) {
    if (word.ends_with('\0')) {
        word.pop_back();
    }
    return word;
}

/// Reads words with CLI11, from left to right, and keeps its ways from showing: whatever is wrong
/// is said in our words, and the first of several faults is.
class WordReader {
public:
    /// Without a command, what stands behind the first word that is no option is left as it is.
    WordReader(std::vector<std::string> words, const CommandRow* command)
        : m_words(std::move(words)), m_left(m_words.rbegin(), m_words.rend()), m_command(command) {
        m_app.set_help_flag();
        m_app.allow_windows_style_options(false);
        m_app.allow_extras();
        m_app.prefix_command(command == nullptr);
    }

    bool isOption(std::string_view word) const {
        const bool isSigned = m_command != nullptr && m_command->takesSigned;
        return word.size() > 1 && word.starts_with(isSigned ? "--" : "-");
    }

    void addFlag(const std::string& name, const std::function<void()>& given) {
        add(name, [this, name, given](const std::string&) {
            if (lastWord() != name) {
                throw unknown(lastWord());  // such as --name=value
            }
            given();
        })->expected(0);
    }

    void addOption(const std::string& name, const std::function<void(const std::string&)>& given) {
        add(name, [this, name, given](const std::string& value) {
            const bool isAttached = name.size() == 2 && lastWord() == name + value;
            if (isAttached && !value.starts_with('=')) {
                throw unknown(lastWord());
            }
            given(isAttached ? value.substr(1) : withoutMark(value));
        });
    }

    /// Reads all; returns the words that are no options, still marked, and "--" where it is.
    std::vector<std::string> read() {
        try {
            m_app.parse(m_left);
        } catch (const CLI::ArgumentMismatch&) {
            throw UsageError(lastWord() + " needs a value");
        }
        refuseUnknown();
        return m_app.remaining();
    }

private:
    CLI::Option* add(const std::string& name, const std::function<void(const std::string&)>& take) {
        return m_app
            .add_option(name,
                        [this, take](const CLI::results_t& values) {
                            refuseUnknown();
                            take(values.back());
                            return true;
                        })
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
            ->trigger_on_parse();
    }

    /// The last of the words that CLI11 has taken so far.
    std::string lastWord() const { return m_words[m_words.size() - m_left.size() - 1]; }

    static UsageError unknown(const std::string& word) {
        return UsageError("unknown option " + shownText(withoutMark(word)));
    }

    void refuseUnknown() const {
        for (const std::string& word : m_app.remaining()) {
            if (word == "--" || (m_command == nullptr && !isOption(word))) {
                return;
            }
            if (isOption(word)) {
                throw unknown(word);
            }
        }
    }

    CLI::App m_app;
    std::vector<std::string> m_words;
    std::vector<std::string> m_left;  // backwards, as CLI11 wants them
    const CommandRow* m_command;
};

/// Adds the options that stand before the command or behind it.
void addGeneralOptions(WordReader& reader, Options& options,
                       const std::function<std::string()>& help) {
    reader.addOption("--app", [&options](const std::string& folder) {
        options.appFolder = nativePath(folder);
        if (options.appFolder.empty()) {
            throw UsageError("--app needs a folder");
        }
    });
    for (const char* const name : {"--help", "-h"}) {
        if (reader.isOption(name)) {
            reader.addFlag(name, [help] { throw Answer{help()}; });
        }
    }
    reader.addFlag("--version", [] { throw Answer{"FleetWright " FLEETWRIGHT_VERSION "\n"}; });
}

/// Reads up to the command, and returns the words behind it.
std::vector<std::string> readCommand(CommandRows commands, std::vector<std::string> words,
                                     Options& options) {
    WordReader reader(std::move(words), nullptr);
    addGeneralOptions(reader, options, [commands] { return helpText(commands); });
    std::vector<std::string> rest = reader.read();
    const auto name = rest.begin() + (!rest.empty() && rest.front() == "--" ? 1 : 0);
    if (name == rest.end()) {
        throw NoCommandError();
    }
    const auto row =
        std::ranges::find_if(commands, [&](const CommandRow* each) { return each->name == *name; });
    if (row == commands.end()) {
        throw UsageError("no command " + quote(withoutMark(*name)));
    }
    options.command = *row;
    rest.erase(name);
    return rest;
}

void readWords(std::vector<std::string> words, Options& options) {
    const CommandRow& row = *options.command;
    WordReader reader(std::move(words), &row);
    addGeneralOptions(reader, options, [&row] { return helpText(row); });
    for (const OptionRow& option : row.options) {
        const auto take = [&](const std::string& value) {
            if (option.check != nullptr) {
                option.check(option.name, value);
            }
            options.values[std::string(option.name)] = value;
        };
        if (option.value.empty()) {
            reader.addFlag(std::string(option.name), [take] { take({}); });
        } else {
            reader.addOption(std::string(option.name), take);
        }
    }
    bool isBehindMark = false;
    for (const std::string& word : reader.read()) {
        if (word == "--" && !isBehindMark) {
            isBehindMark = true;
        } else {
            options.words.push_back(withoutMark(word));
        }
    }
    if (options.words.size() < row.least) {
        throw UsageError("too few words for " + std::string(row.name) + ' ' +
                         std::string(row.words));
    }
    if (options.words.size() > row.most) {
        throw UsageError("one too many: " + shownText(options.words[row.most]));
    }
    if (row.check != nullptr) {
        row.check(options);
    }
}

}  // namespace

std::string Options::value(std::string_view option) const {
    if (const auto given = values.find(option); given != values.end()) {
        return given->second;
    }
    const auto row = std::ranges::find(command->options, option, &OptionRow::name);
    return row == command->options.end() ? std::string() : std::string(row->byDefault);
}

Options readOptions(CommandRows commands, const std::vector<std::string>& line) {
    Options options;
    try {
        std::vector<std::string> words;
        const auto first = std::ranges::next(line.begin(), 1, line.end());  // the program's name
        std::transform(first, line.end(), std::back_inserter(words), withMark);
        readWords(readCommand(commands, std::move(words), options), options);
    } catch (const Answer& answer) {
        options.command = nullptr;
        options.answer = answer.text;
        return options;
    }
    options.programFolder = executableFolder(line.empty() ? "" : line.front());
    if (options.appFolder.empty()) {
        options.appFolder = applicationFolder(options.programFolder);
    }
    return options;
}

}  // namespace fleetwright
