// Whatever stands in a file, a name or an argument: on standard error, and where somebody looks at
// the results, it does nothing but show.

#include "TemporaryFolder.h"
#include "forSeeds.h"
#include "runTool.h"
#include "text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

using namespace fleetwright;

namespace {

std::string shuffled(std::vector<std::string> pieces, std::mt19937& random) {
    std::ranges::shuffle(pieces, random);
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
class HostileFolder {
public:
    explicit HostileFolder(std::mt19937& random)
        : line(shuffled({"\x1B[31m", "\a", "\x7F", "\u009B2J", "\u061C", "\u200F", "\u202E",
                         "\u2066", "\u2028", "\b", "\u00E9"},
                        random)),
          name(line + shuffled({"\nforged", "\r\nforged", "\x9B", "\xFF"}, random)) {
        write("weaps.dat", "GunLINE,2 * amount,amount,BEAM,BEAM,F,x.gif\n");
        write("NAME.shp", "Ship Name: LINE\nDesigner Name: LINE\nSystem: GunLINE, 1\n"
                          "System: LONG, 1\nType: LINE\nLINE: 1\n");
        write("ships/badNAME.shp", "Mass: LINE\n");
        write("NAME.json", "{\"LINE\": 1}");
        write("old.shp", "Mass: \x81\x8D\x1B\n");  // Windows-1252
        write("maps/NAME.map", "IMAGE: x.gif\nSIZE: 10\nFTL: (1,1)\n");
        write("badNAME.map", "IMAGE: LINE\nSIZE: LINE\nLINE: 1\nWEAP: (LINE,1,LINE)\nDCP: LONG\n");
        write("badNAME.dat", "B,LINE,1 + LINE,LINE,LINE,LINE,LINE\nB,LONG\n");
        write("images/NAME.gif", "none");
        write("FleetWright/recovered/NAME.shp", "");
    }

    /// Runs the tool with these words in this folder.
    ToolRun run(const std::string& words, ToolOutput kind) const {
        std::istringstream stream(words);
        std::vector<std::string> arguments = {"--app", "."};
        for (std::string word; stream >> word;) {
            arguments.push_back(filled(word));
        }
        const std::string folder = m_folder.path().string();
        return runTool(folder, arguments, "XDG_DATA_HOME=" + folder, kind);
    }

    const std::string line;  ///< for a line of a file
    const std::string name;  ///< for a name or an argument

private:
    std::string filled(std::string text) const {
        for (const auto& [mark, hostile] : {std::pair<std::string, std::string>("NAME", name),
                                            {"LINE", line},
                                            {"LONG", line + std::string(1000, 'A')}}) {
            for (std::size_t at = 0; (at = text.find(mark)) != std::string::npos;) {
                text.replace(at, mark.size(), hostile);
            }
        }
        return text;
    }

    void write(const std::string& file, const std::string& contents) const {
        m_folder.write(filled(file), filled(contents));
    }

    TemporaryFolder m_folder;
};

constexpr const char* commandLines[] = {"report NAME.shp",
                                        "explain NAME.shp",
                                        "figures NAME.shp NAME",
                                        "maps",
                                        "maps NAME.shp",
                                        "save NAME.shp NAME/none",
                                        "save NAME out",
                                        "export NAME.shp",
                                        "import NAME.json",
                                        "recovered",
                                        "recovered LONG out",
                                        "recovered NAME NAME/none",
                                        "sheet NAME.shp --map LONG",
                                        "sheet NAME.shp",
                                        "sheet NAME.shp -o NAME.jpeg",
                                        "sheet NAME.shp --paper LONG",
                                        "scan NAME",
                                        "scan images/NAME.gif",
                                        "scan weaps.dat -o NAME/none",
                                        "check",
                                        "check old.shp NAME.shp NAME",
                                        "check badNAME.map badNAME.dat",
                                        "--app NAME check",
                                        "--app NAME unpack",
                                        "--app LONG figures NAME.shp",
                                        "unpack LONG",
                                        "eval LONG",
                                        "eval 1+NAME",
                                        "eval 1 --mass LONG",
                                        "NAME",
                                        "LONG",
                                        "--LONG",
                                        "eval --LONG=1",
                                        "maps -LONG"};

}  // namespace

TEST(SafeText, NothingFromOutsideDoesMoreThanShow) {
    forSeeds([](std::mt19937& random) {
        const HostileFolder folder(random);
        for (const std::string words : commandLines) {
            for (const ToolOutput kind : {ToolOutput::File, ToolOutput::Terminal}) {
                const ToolRun seen = folder.run(words, kind);
                EXPECT_EQ(faultOf(seen.errors, false), "") << words << '\n' << seen.errors;
                const bool areComplaints = words.find("check") != std::string::npos;
                if (kind == ToolOutput::Terminal || areComplaints || words.starts_with("figures")) {
                    EXPECT_EQ(faultOf(seen.output, !areComplaints), "") << words << '\n'
                                                                        << seen.output;
                }
            }
        }
    });
}

TEST(SafeText, ResultsKeepTheirBytesInFiles) {
    forSeeds([](std::mt19937& random) {
        const HostileFolder folder(random);
        const auto output = [&](const char* words, ToolOutput kind) {
            return folder.run(words, kind).output;
        };
        EXPECT_TRUE(output("explain NAME.shp", ToolOutput::File).starts_with(folder.line + '\n'));
        EXPECT_TRUE(output("explain NAME.shp", ToolOutput::Terminal)
                        .starts_with(shownText(folder.line) + '\n'));
        EXPECT_EQ(output("maps", ToolOutput::File), folder.name + '\n');
        EXPECT_EQ(output("maps", ToolOutput::Terminal), shownText(folder.name) + '\n');
        const std::string figures = output("figures NAME.shp", ToolOutput::File);
        EXPECT_EQ(figures, output("figures NAME.shp", ToolOutput::Terminal));
        EXPECT_NE(figures.find("\\u202e"), std::string::npos);
    });
}

TEST(SafeText, ShowsTheBeginningAndTheEndOfWhatIsTooLong) {
    const std::string whole = "é" + std::string(198, 'b') + "é";
    EXPECT_EQ(shownText(whole), whole);
    EXPECT_EQ(shownText(whole + "\x1B"),
              "é" + std::string(99, 'b') + "…" + std::string(98, 'b') + "é\uFFFD");
}
