// Designs put aside. An input is what runs of the program do in their folder, what else happens to
// the files there, run marks and records among them, and which calls to the system fail.

#include "Error.h"
#include "FileFaults.h"
#include "FileTree.h"
#include "RecoveryFolder.h"
#include "Trash.h"
#include "require.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

const std::string recovered = "recovered/";

class Runs : public Trash {
public:
    explicit Runs(Choices& choices) : m_choices(choices) {
        m_tree.write("precious", "mine");
        fs::create_directory(m_tree.path() / recovered);
        fs::create_directory(m_tree.path() / "trash");
    }

    void act() {
        Run& run = m_choices.pick(m_runs);
        if (!run.folder) {
            run.atWork = run.last = "";
            run.folder.emplace(m_tree.path() / recovered, [] { return "now"; }, *this);
        }
        switch (m_choices.below(7)) {
        case 0:
            m_promised.erase(std::exchange(run.atWork, ""));
            tryOut(run, [&] { run.folder->forget(); });
            break;
        case 1:
            tryOut(run, [&] { run.folder.reset(); });
            break;
        case 2:
            look(run);
            break;
        case 3:
            meddle();
            break;
        default:
            put(run);
        }
        for (const std::string& contents : m_promised) {
            require(isIn("", contents), "nothing is lost: " + contents);
        }
    }

private:
    struct Run {
        std::optional<RecoveryFolder> folder;
        std::string atWork;  ///< the design of which the run has a file
        std::string last;    ///< the last one that it has put aside
    };

    bool isIn(const std::string& folder, const std::string& contents) const {
        return std::ranges::any_of(m_tree.files(), [&](const auto& file) {
            return file.first.starts_with(folder) && file.second.ends_with(' ' + contents);
        });
    }

    /// Acts while a call fails, which may be the end of the run; whether the act was done.
    bool tryOut(Run& run, const std::function<void()>& act) {
        const int nth = m_choices.oneIn(2) ? m_choices.below(50) : 0;
        const bool isLast = m_choices.oneIn(2);
        const FileFaults faults(nth, isLast ? FileFaults::Kind::IsLast : FileFaults::Kind::Fails);
        bool isDone = true;
        try {
            act();
        } catch (const FileError&) {
            isDone = false;
        }
        if (isLast && nth > 0 && faults.calls() >= nth) {
            run.folder.reset();
        }
        return isDone;
    }

    void put(Run& run) {
        const std::string contents =
            "Ship Name: A\r\nDesigner Name: B\r\nMass: 12\r\nThrust: 2\r\nType: Warship\r\n"
            "FTL: Normal\r\nSystem: Gun, " +
            std::to_string(m_made.size() + 1) + "\r\n";
        m_made.insert(contents);
        const bool isForGood = m_choices.oneIn(2);
        const bool isDone = tryOut(run, [&] {
            isForGood ? run.folder->keep({"A", 12, contents})
                      : run.folder->put({"A", 12, contents});
        });
        if (isDone || isIn(recovered, contents)) {
            m_promised.erase(run.atWork);
            m_promised.insert(contents);
            run.atWork = isDone && isForGood ? "" : contents;
            m_lasts.erase(run.last);
            m_lasts.insert(run.last = contents);
        }
    }

    void look(Run& run) {
        tryOut(run, [&] { run.folder->lookAround(); });
        if (!run.folder) {
            return;
        }
        std::vector<RecoveryFolder::Design> designs = run.folder->lookAround();
        std::set<std::string> listed;
        for (const RecoveryFolder::Design& design : designs) {
            listed.insert(readBytes(design.file));
        }
        for (const std::string& contents : m_promised) {
            require(listed.contains(contents) || !isIn(recovered, contents) ||
                        std::ranges::any_of(m_runs,
                                            [&](const Run& each) {
                                                return each.folder && each.atWork == contents;
                                            }),
                    "each design is listed but those at work: " + contents);
        }
        m_seen.insert(listed.begin(), listed.end());
        tryOut(run, [&] { run.folder->noteSeen(designs); });
    }

    bool moveToTrash(const fs::path& file) override {
        const std::string contents = readBytes(file);
        require(m_made.contains(contents) && m_seen.contains(contents) &&
                    !m_lasts.contains(contents),
                "only old designs go, which were made by a run and seen: " + contents);
        require(RecoveryFolder::list(file.parent_path()).size() > RecoveryFolder::mostKept,
                "some stay in any case");
        if (m_choices.oneIn(4)) {
            return false;
        }
        fs::rename(file, m_tree.path() / "trash" / std::to_string(++m_thrownAway));
        return true;
    }

    void meddle() {
        std::vector<std::string> names = {recovered + "Own.shp", recovered + "1.lock",
                                          recovered + "A, mass 12, now #900.shp"};
        for (const auto& [path, what] : m_tree.files()) {
            if (path.starts_with(recovered)) {
                names.push_back(path);
            }
        }
        m_tree.meddle(m_choices, m_choices.pick(names), "mine");
        std::erase_if(m_promised, [this](const auto& each) { return !isIn("", each); });
        for (const auto& [path, what] : m_tree.files()) {
            if (path.find(".shp") != std::string::npos && what.starts_with("file mine")) {
                m_promised.insert(what.substr(what.find(' ') + 1));
            }
        }
    }

    Choices& m_choices;
    FileTree m_tree;
    std::array<Run, 3> m_runs;
    std::set<std::string> m_made;
    std::set<std::string> m_seen;
    std::set<std::string> m_lasts;     ///< of each run the last one
    std::set<std::string> m_promised;  ///< what may not be lost
    int m_thrownAway = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes choices({data, size});
    Runs runs(choices);
    for (int acts = 0; acts < 80 && !choices.areOver(); ++acts) {
        runs.act();
    }
    return 0;
}
