// Whatever stands in a file, a name or an argument: on standard error, and where somebody looks at
// the results, it does nothing but show.

#include "TemporaryFolder.h"
#include "runTool.h"
#include "text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace fleetwright;

namespace {

std::string shuffled(std::vector<std::string> pieces, unsigned seed) {
    std::shuffle(pieces.begin(), pieces.end(), std::mt19937(seed));
    std::string text;
    for (const std::string& piece : pieces) {
        text += piece;
    }
    return text;
}

/// What is wrong with complaints, or with results on a terminal, or nothing.
std::string faultOf(const std::string& text, bool areResults) {
    for (std::string_view rest = text; !rest.empty(); rest.remove_prefix(characterLength(rest))) {
        const bool isLayout = rest.starts_with('\n') ||
                              (areResults && (rest.starts_with('\t') || rest.starts_with("\r\n")));
        if (!isLayout && !onlyShows(codePoint(rest))) {
            return "does more than show";
        }
    }
    if (!areResults && text.find(std::string(201, 'A')) != std::string::npos) {
        return "quotes too much";
    }
    const bool isForged = text.find("\nforged") != std::string::npos;
    return isForged ? "has a forged line" : isUtf8(text) ? "" : "is no UTF-8";
}

/// A folder in which all that others write is hostile.
class SafeText : public testing::TestWithParam<unsigned> {
protected:
    SafeText() {
        m_folder.write("weaps.dat", "Gun" + line + ",2 * amount,amount,BEAM,BEAM,F,x.gif\n");
        m_folder.write(name + ".shp", "Ship Name: " + line + "\nDesigner Name: " + line +
                                          "\nSystem: Gun" + line + ", 1\nSystem: " + line +
                                          longText + ", 1\nType: " + line + "\n" + line + ": 1\n");
        m_folder.write("ships/bad" + name + ".shp", "Mass: " + line + "\n");
        m_folder.write("old.shp", "Mass: \x81\x8D\x1B\n");  // Windows-1252
        m_folder.write("maps/" + name + ".map", "IMAGE: x.gif\nSIZE: 10\nFTL: (1,1)\n");
        m_folder.write("bad" + name + ".map", "IMAGE: " + line + "\nSIZE: " + line + "\n" + line +
                                                  ": 1\nWEAP: (" + line + ",1," + line +
                                                  ")\nDCP: " + line + longText + "\n");
        m_folder.write("bad" + name + ".dat", "B," + line + ",1 + " + line + "," + line + "," +
                                                  line + "," + line + "," + line + "\nB," + line +
                                                  longText + "\n");
        m_folder.write("images/" + name + ".gif", "none");
        m_folder.write("FleetWright/recovered/" + name + ".shp", "");
    }

    ToolRun run(const std::vector<std::string>& arguments, ToolOutput kind) const {
        const std::string folder = m_folder.path().string();
        return runTool(folder, arguments, "XDG_DATA_HOME=" + folder, kind);
    }

    /// In a line of a file, and in a name or an argument.
    const std::vector<std::string> pieces = {"\x1B[31m", "\a",     "\x7F",   "\u009B2J",
                                             "\u061C",   "\u200F", "\u202E", "\u2066",
                                             "\u2028",   "\b",     "\u00E9"};
    const std::string line = shuffled(pieces, GetParam());
    const std::string name =
        line + shuffled({"\nforged", "\r\nforged", "\x9B", "\xFF"}, GetParam());
    const std::string longText = std::string(1000, 'A');
    TemporaryFolder m_folder;
};

}  // namespace

TEST_P(SafeText, NothingFromOutsideDoesMoreThanShow) {
    const std::string ship = name + ".shp";
    const std::string argument = name + longText;
    const std::vector<std::vector<std::string>> commandLines = {
        {"report", ship},
        {"explain", ship},
        {"figures", ship, name},
        {"maps"},
        {"maps", ship},
        {"save", ship, name + "/none"},
        {"save", name, "out"},
        {"recovered"},
        {"recovered", argument, "out"},
        {"recovered", name, name + "/none"},
        {"sheet", ship, "--map", argument},
        {"sheet", ship},
        {"sheet", ship, "-o", name + ".jpeg"},
        {"sheet", ship, "--paper", argument},
        {"scan", name},
        {"scan", "images/" + name + ".gif"},
        {"scan", "weaps.dat", "-o", name + "/none"},
        {"check"},
        {"check", "old.shp", ship, name},
        {"check", "bad" + name + ".map", "bad" + name + ".dat"},
        {"--app", name, "check"},
        {"--app", name, "unpack"},
        {"--app", argument, "figures", ship},
        {"unpack", argument},
        {"eval", argument},
        {"eval", "1 + " + argument},
        {"eval", "1", "--mass", argument},
        {argument},
        {"--" + argument},
        {"eval", "--" + argument + "=1"},
        {"maps", "-" + argument},
    };
    for (const std::vector<std::string>& words : commandLines) {
        for (const ToolOutput kind : {ToolOutput::File, ToolOutput::Terminal}) {
            std::vector<std::string> arguments = {"--app", "."};
            arguments.insert(arguments.end(), words.begin(), words.end());
            const ToolRun seen = run(arguments, kind);
            const std::string which = testing::PrintToString(words);
            EXPECT_EQ(faultOf(seen.errors, false), "") << which << seen.errors;
            const bool areComplaints = words.front() == "check";
            if (kind == ToolOutput::Terminal || areComplaints || words.front() == "figures") {
                EXPECT_EQ(faultOf(seen.output, !areComplaints), "") << which << seen.output;
            }
        }
    }
}

TEST_P(SafeText, ResultsKeepTheirBytesInFiles) {
    const auto output = [this](const std::vector<std::string>& arguments, ToolOutput kind) {
        return run(arguments, kind).output;
    };
    const std::vector<std::string> explain = {"--app", ".", "explain", name + ".shp"};
    EXPECT_TRUE(output(explain, ToolOutput::File).starts_with(line + '\n'));
    EXPECT_TRUE(output(explain, ToolOutput::Terminal).starts_with(shownText(line) + '\n'));
    const std::vector<std::string> maps = {"--app", ".", "maps"};
    EXPECT_EQ(output(maps, ToolOutput::File), name + '\n');
    EXPECT_EQ(output(maps, ToolOutput::Terminal), shownText(name) + '\n');
    const std::vector<std::string> figures = {"--app", ".", "figures", name + ".shp"};
    EXPECT_EQ(output(figures, ToolOutput::File), output(figures, ToolOutput::Terminal));
    EXPECT_NE(output(figures, ToolOutput::File).find("\\u202e"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Seeds, SafeText, testing::Values(1U, std::random_device()()));
