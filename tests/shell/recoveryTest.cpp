// The designs put aside: files of acts of runs of the program and of users, each with all files
// that look different then; and runs that end at any of their calls.

#include "Error.h"
#include "FileFaults.h"
#include "RecoveryFolder.h"
#include "RecoverySteps.h"
#include "TemporaryFolder.h"
#include "Trash.h"
#include "caseFile.h"
#include "fingerprint.h"
#include "forSeeds.h"
#include "paths.h"
#include "readFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <regex>
#include <set>
#include <utility>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

/// A design that is told by its ship and mass.
RecoveryFolder::Aside designOf(const std::string& ship, int mass, const std::string& steps = {}) {
    return {ship, mass,
            "Ship Name: " + ship + "\r\nDesigner Name: X\r\nMass: " + std::to_string(mass) +
                "\r\nThrust: 2\r\nType: Warship\r\nFTL: Normal\r\nSystem: Gun, 1\r\n",
            steps};
}

/// What is in steps that are whole.
std::string unsealed(const std::string& text) {
    return areStepsWhole(text) ? text.substr(text.find('\n') + 1) : text;
}

/// A folder of designs put aside, with a trash beside it.
class Recovery : public Trash {
public:
    std::string run(const std::string& acts) {
        return playActs(acts, {.act = [this](const std::string& act) { doLine(act); },
                               .takeLog = [this] { return std::exchange(m_log, {}); },
                               .look = [this] { return look(); },
                               .folder = m_root.path().string()});
    }

    bool moveToTrash(const fs::path& file) override {
        fs::create_directory(m_root.path() / "trash");
        if (m_hasTrash) {
            fs::rename(file, m_root.path() / "trash" / file.filename());
        }
        return m_hasTrash;
    }

    /// A run of the program, which begins when it is first named.
    RecoveryFolder& runOf(const std::string& name) {
        const auto now = [this] { return "t" + std::to_string(++m_now); };
        return m_runs.try_emplace(name, m_folder, now, *this).first->second;
    }
    void end(const std::string& run) { m_runs.erase(run); }
    const fs::path& folder() const { return m_folder; }

private:
    std::map<std::string, std::string> look() {
        std::map<std::string, std::string> seen;
        std::map<std::string, int> counts = {{"locks", 0}, {"records", 0}};
        for (const auto& entry : fs::recursive_directory_iterator(m_root.path())) {
            const std::string name =
                entry.path().lexically_relative(m_root.path()).generic_string();
            if (name.find(".record-") != std::string::npos) {
                ++counts["records"];
            } else if (entry.path().extension() == ".lock") {
                ++counts["locks"];
            } else if (entry.is_regular_file()) {
                const std::string text =
                    replaced(replaced(unsealed(m_root.read(name)), "\r\n", ", "), "\r", "|");
                const std::size_t mass = text.find("Mass: ");  // tells a design
                seen[withoutMark(replaced(name, "recovered/", ""))] =
                    text.ends_with("System: Gun, 1, ")
                        ? text.substr(mass, text.find(',', mass) - mass)
                        : text;
            }
        }
        for (const auto& [what, count] : counts) {
            seen[what] = std::to_string(count);
        }
        return seen;
    }

    static std::string withoutMark(const std::string& text) {
        return std::regex_replace(text, std::regex("~[0-9]{2,}"), "~MARK");
    }

    void doLine(const std::string& line) {
        try {
            const auto [act, rest] = cut(line);
            perform(act, cut(rest).first, cut(rest).second);
        } catch (const FileError& error) {
            const std::regex reason("saved: .*");  // as the system has it
            m_log += std::regex_replace(withoutMark(complaint(error)), reason, "saved") + "; ";
        }
    }

    void perform(const std::string& act, const std::string& name, const std::string& text) {
        const fs::path file = m_folder / nativePath(text);
        const std::map<std::string, std::function<void()>> acts = {
            {"put", [&] { runOf(name).put(m_last = nextDesign(text)); }},
            {"less",
             [&] {
                 m_last.shipFile.resize(m_last.shipFile.rfind("System"));
                 runOf(name).put(m_last);
             }},
            {"again",
             [&] {
                 RecoveryFolder::Aside design = text == "x" ? m_last : designOf(text, 1);
                 design.steps = m_steps;
                 runOf(name).keep(design);
             }},
            {"same",
             [&] {
                 m_last.steps = m_steps;
                 runOf(name).put(m_last);
             }},
            {"other", [&] { runOf(name).keepOther(nextDesign(text)); }},
            {"keep", [&] { runOf(name).keep(m_last = nextDesign(text)); }},
            {"forget", [&] { runOf(name).forget(kindOf(text)); }},
            {"look", [&] { say(m_shown = runOf(name).lookAround()); }},
            {"see",
             [&] {
                 std::vector<RecoveryFolder::Design> designs = runOf(name).lookAround();
                 runOf(name).noteSeen(designs);
             }},
            {"list", [&] { say(RecoveryFolder::list(m_folder)); }},
            {"end", [&] { end(name); }},
            {"crash", [&] { crash(name); }},
            {"now", [&] { m_now = std::stoi(name); }},
            {"no", [&] { m_hasTrash = false; }},
            {"steps", [&] { m_steps = "steps " + fingerprint(name) + '\n' + name; }},
            {"back",
             [&] {
                 for (const auto& design : runOf(name).lookAround()) {
                     m_log +=
                         design.name + ": " + unsealed(RecoveryFolder::stepsOf(design.file)) + "; ";
                 }
             }},
            {"write", [&] { m_root.write("recovered/" + text, name); }},
            {"ship", [&] { m_root.write("recovered/" + text, designOf("Gnat", 9).shipFile); }},
            {"cut",
             [&] {
                 const std::size_t length = m_last.shipFile.size() - std::stoul(name);
                 m_root.write("recovered/" + text, m_last.shipFile.substr(0, length));
             }},
            {"later",
             [&] { fs::last_write_time(file, fs::file_time_type::clock::now() + m_later); }},
            {"block",
             [&] {
                 const std::string own = oneLike("~");
                 fs::create_directory(m_folder / (text + own.substr(own.rfind('~'))));
             }},
            {"remove", [&] { fs::remove(m_folder / oneLike(name)); }},
            {"copy", [&] { fs::copy_file(m_folder / oneLike(name), file); }},
            {"over", [&] { m_root.write("recovered/" + oneLike(name), text); }},
            {"open", [&] { runOf(name).noteOpened(m_folder / text); }},
            {"throw",
             [&] {
                 for (const auto& design : m_shown) {
                     m_log += design.name == text ? runOf(name).moveToTrash(design) ? "" : "stays; "
                                                  : "";
                 }
             }},
            {"damage", [&] { m_root.write("recovered/" + oneLike(".record-"), "mine"); }}};
        acts.at(act)();
    }

    RecoveryFolder::Aside nextDesign(const std::string& ship) {
        RecoveryFolder::Aside next = designOf(ship, ++m_mass);
        next.steps = m_steps;
        next.kind = kindOf(ship);
        return next;
    }

    static RecoveryKind kindOf(const std::string& name) {
        return name.starts_with("Fleet") ? RecoveryKind::Fleet : RecoveryKind::Ship;
    }

    void say(const std::vector<RecoveryFolder::Design>& designs) {
        for (const RecoveryFolder::Design& design : designs) {
            const bool isPlain = design.name == design.file.stem();
            m_log += (design.isLeftBehind ? "left " : "") +
                     (isPlain ? design.name : design.name.substr(0, design.name.find('~'))) +
                     (design.about.mass ? ": " + std::to_string(*design.about.mass) : "") + "; ";
        }
    }

    /// The name of a file that contains this.
    std::string oneLike(const std::string& part) const {
        for (const auto& entry : fs::directory_iterator(m_folder)) {
            if (entry.path().filename().string().find(part) != std::string::npos) {
                return entry.path().filename().string();
            }
        }
        throw FileError(m_folder, "holds no " + part);
    }

    /// None of its calls reaches the disk any more.
    void crash(const std::string& name) {
        const FileFaults noMore(1, FileFaults::Kind::IsLast);
        m_runs.erase(name);
    }

    TemporaryFolder m_root;
    const fs::path m_folder = m_root.path() / "recovered";
    const std::chrono::hours m_later = std::chrono::hours(1000);
    std::map<std::string, RecoveryFolder> m_runs;
    RecoveryFolder::Aside m_last = {};
    std::vector<RecoveryFolder::Design> m_shown;  ///< by the last look
    int m_now = 0;
    int m_mass = 0;
    bool m_hasTrash = true;
    std::string m_steps;  ///< of the designs to come
    std::string m_log;
};

/// What a user has been told to be put aside.
class Promises {
public:
    /// Has a run put a design aside, for good or not. If that fails, the user is told, and has it
    /// or the one from before.
    void aside(RecoveryFolder& run, const RecoveryFolder::Aside& design, bool isForGood = false) {
        std::vector<std::string>& atWork = m_atWork[design.kind];
        try {
            isForGood ? run.keep(design) : run.put(design);
            atWork = {design.shipFile};
            if (isForGood) {
                m_kept.push_back(std::exchange(atWork, {}));
            }
        } catch (const FileError&) {
            atWork.empty() ? void() : atWork.push_back(design.shipFile);
        }
    }

    /// Holds a folder against that. Nothing is there by half, and with a fault at most without its
    /// steps.
    void expectIn(const fs::path& folder, bool isFaulty) const {
        std::set<std::string> found;
        for (const RecoveryFolder::Design& design : RecoveryFolder::list(folder)) {
            const std::string steps = RecoveryFolder::stepsOf(design.file);
            EXPECT_TRUE(areStepsWhole(steps) || (isFaulty && steps.empty())) << design.file;
            EXPECT_TRUE(found.insert(readBytes(design.file)).first->ends_with("Gun, 1\r\n"));
        }
        std::vector<std::vector<std::string>> wanted = m_kept;
        for (const auto& [kind, atWork] : m_atWork) {
            atWork.empty() ? void() : wanted.push_back(atWork);
        }
        for (const std::vector<std::string>& each : wanted) {
            const auto isThere = [&](const std::string& one) { return found.contains(one); };
            EXPECT_TRUE(std::ranges::any_of(each, isThere)) << each.back();
        }
    }

private:
    std::map<RecoveryKind, std::vector<std::string>> m_atWork;  ///< one of these
    std::vector<std::vector<std::string>> m_kept;
};

}  // namespace

TEST(Recovery, KeepsWhatRunsAndUsersLeaveInItsFolder) {
    expectCases("shell/golden/recovery.txt",
                [](const Case& each) { return Recovery().run(each["acts"]); });
}

// Most of a start would go there: what names say is not asked again.
TEST(Recovery, KnowsTheTimeInTheNameOfAnOlderDesign) {
    const RecoveryName name = RecoveryName::of("Sea Wasp 2026-01-02 03.04.05", RecoveryKind::Ship);
    EXPECT_EQ(name.ship, "Sea Wasp");
    EXPECT_EQ(name.time, "2026-01-02 03.04.05");
}

TEST(Recovery, LooksOnceHoweverManyDesignsThereAre) {
    const auto callsFor = [](int count) {
        Recovery world;
        fs::create_directory(world.folder());
        for (int i = 1; i <= count; ++i) {
            const RecoveryName name = {"Wasp", 2, "t", static_cast<std::uint64_t>(i)};
            std::ofstream(world.folder() / (name.text() + (i % 2 == 0 ? ".shp" : ".shp~7")));
        }
        const FileFaults faults;
        EXPECT_EQ(world.runOf("run").lookAround().size(), static_cast<std::size_t>(count));
        return faults.calls();
    };
    EXPECT_EQ(callsFor(200), callsFor(2));
}

// A design at work is put aside every second.
TEST(Recovery, WritesAgainOnlyWhatHasChanged) {
    Recovery world;
    const auto callsFor = [&](const std::string& steps) {
        const FileFaults faults;
        world.runOf("run").put(designOf("Wasp", 2, "steps " + fingerprint(steps) + '\n' + steps));
        return faults.calls();
    };
    callsFor("one");
    const int forNewSteps = callsFor("two");
    EXPECT_LT(callsFor("two"), forNewSteps);
}

// A run ends at any of its calls, as a kill ends it, or one of them fails. What it has said to be
// put aside is there for the next one, what was kept before too, and nothing is there by half.
TEST(Recovery, LosesNothingWhereverARunEndsOrACallFails) {
    const std::string steps = "steps " + fingerprint("s") + "\ns";
    const auto design = [&](const std::string& name, int mass) {
        RecoveryFolder::Aside aside = designOf(name, mass, steps);
        aside.kind = name == "Fleet" ? RecoveryKind::Fleet : RecoveryKind::Ship;
        return aside;
    };
    const auto play = [&](int nth, FileFaults::Kind kind) {
        SCOPED_TRACE(nth);
        Recovery world;
        Promises before, crashed, promises;
        before.aside(world.runOf("before"), design("Before", 2), true);
        world.end("before");
        crashed.aside(world.runOf("crashed"), design("Crashed", 4));
        int calls = 0;
        {
            FileFaults faults(nth, kind);
            world.end("crashed");
            RecoveryFolder& run = world.runOf("run");
            try {
                std::vector<RecoveryFolder::Design> designs = run.lookAround();
                run.noteSeen(designs);
            } catch (const FileError&) {
            }
            promises.aside(run, design("First", 6));
            promises.aside(run, design("Fleet", 12));
            promises.aside(run, design("Second", 8));
            promises.aside(run, design("Fleet", 14));
            promises.aside(run, design("Second", 8), true);
            promises.aside(run, design("Third", 10));
            promises.aside(run, design("Third", 10), true);
            world.end("run");
            calls = faults.calls();
        }
        world.runOf("next").lookAround();
        for (const Promises& each : {before, crashed, promises}) {
            each.expectIn(world.folder(), calls >= nth);
        }
        return calls;
    };
    forSeeds([&](std::mt19937& random) {
        constexpr int step = 17;  // each call waits for the disk
        for (const auto kind : {FileFaults::Kind::IsLast, FileFaults::Kind::Fails}) {
            for (int nth = anyOf(random, 1, step); play(nth, kind) >= nth; nth += step) {
            }
        }
    });
}
