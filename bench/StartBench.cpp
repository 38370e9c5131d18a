// The program from its start until its main window is painted, against a bare program with as many
// widgets, nodes and pictures. Both are processes of their own, the pictures are unpacked, and it
// is not the first start.

#include "BenchFolder.h"
#include "BenchWindow.h"
#include "Catalogue.h"
#include "FormWindow.h"
#include "GoalTable.h"
#include "RecoveryFolder.h"
#include "Trash.h"

#include <QToolButton>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Runs a program that shows nothing until it ends.
void run(std::vector<std::string> command) {
    std::vector<std::string> environment = {"QT_QPA_PLATFORM=offscreen", "LANG=C.UTF-8",
                                            "HOME=" + benchFolder().string(),
                                            "XDG_RUNTIME_DIR=" + benchFolder().string()};
    std::vector<char*> argv, envp;
    for (std::string& argument : command) {
        argv.push_back(argument.data());
    }
    for (std::string& variable : environment) {
        envp.push_back(variable.data());
    }
    argv.push_back(nullptr);
    envp.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (std::freopen("/dev/null", "w", stderr) != nullptr) {
            execve(argv[0], argv.data(), envp.data());
        }
        _exit(126);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0) {
        throw std::runtime_error(command.front() + " has failed");
    }
}

/// The program in an application folder, beside its files as it expects.
std::string programStart() {
    const fs::path program = benchApplication() / "program-start";
    fs::copy_file(PROGRAM_START, program);
    fs::copy(APP_FOLDER "/maps", benchApplication() / "maps");
    // As if they had been unpacked some time ago: the state of new files tells little.
    for (const fs::directory_entry& picture :
         fs::directory_iterator(benchApplication() / "images")) {
        fs::last_write_time(picture.path(),
                            fs::file_time_type::clock::now() - std::chrono::hours(1));
    }
    return program.string();
}

void addControls(const Container& container, const QWidget& window, std::ostream& out) {
    for (const Control* const control : container.controls()) {
        const auto* const widget =
            window.findChild<QWidget*>(QString::fromStdString(control->name()));
        if (widget == nullptr) {
            continue;
        }
        out << "widget " << widget->metaObject()->className();
        if (!control->design().picture.empty()) {
            out << " :/pictures/" << control->design().picture << ".png";
        }
        out << '\n';
        if (const auto* const inner = dynamic_cast<const Container*>(control)) {
            addControls(*inner, window, out);
        }
    }
}

/// What the bare window is to show: as much as the main window does.
std::string description() {
    const fs::path file = benchFolder() / "bare-window.txt";
    const fs::path appFolder = benchApplication();
    BenchWindow window(appFolder);
    const FormWindow drawn(window.form());
    std::ofstream out(file);
    addControls(window.form(), drawn, out);
    for (const QToolButton* const arrow : drawn.findChildren<QToolButton*>()) {
        if (arrow->arrowType() != Qt::NoArrow) {
            out << "widget QToolButton\n";
        }
    }
    std::vector<std::string> pictures;
    const auto catalogue = CatalogueFile(appFolder / "weaps.dat").read();
    for (const CatalogueLine& line : catalogue->lines()) {
        pictures.push_back((appFolder / "images" / line.icon).string());
    }
    std::size_t next = 0;
    for (const TreeView::Node& node : window.form().tree.tvWeapons.nodes()) {
        int depth = 0;
        for (const TreeView::Node* above = node.parent; above != nullptr; above = above->parent) {
            ++depth;
        }
        out << "node " << depth << ' '
            << (depth == 0 ? ":/pictures/root-blank.gif" : pictures[next++]) << ' ' << node.key
            << '\n';
    }
    for (const char* const other : {"root-blank.gif", "splash-1.gif", "splash-2.bmp"}) {
        out << "picture :/pictures/" << other << '\n';
    }
    return file.string();
}

/// Seconds that the program and the bare window take to start. They are started by turns, so that
/// what slows the machine down for a while meets both.
struct Starts {
    Starts(const std::string& program, const std::string& description) {
        constexpr int turns = 15;
        for (int i = 0; i < turns; ++i) {
            ofProgram = std::min(ofProgram, timed({program}));
            ofBareWindow = std::min(ofBareWindow, timed({BARE_WINDOW, description}));
        }
    }

    double ratio() const { return ofProgram / ofBareWindow; }

    double ofProgram = std::numeric_limits<double>::max();
    double ofBareWindow = std::numeric_limits<double>::max();

private:
    static double timed(const std::vector<std::string>& command) {
        const auto begin = std::chrono::steady_clock::now();
        run(command);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    }
};

/// Those with the median ratio of three.
const Starts& medianStarts() {
    static const Starts median = [] {
        const std::string program = programStart(), window = description();
        std::array<Starts, 3> runs = {Starts(program, window), Starts(program, window),
                                      Starts(program, window)};
        std::sort(runs.begin(), runs.end(),
                  [](const Starts& a, const Starts& b) { return a.ratio() < b.ratio(); });
        return runs[1];
    }();
    return median;
}

void startProgram(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(medianStarts().ofProgram);
    }
}

void startBareWindow(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(medianStarts().ofBareWindow);
    }
}

/// Nothing is thrown away.
class NoTrash : public Trash {
public:
    bool moveToTrash(const fs::path&) override { return false; }
};

/// What the program does behind its start: looks for designs that a crash has left.
void lookAtManyPutAside(benchmark::State& state) {
    constexpr int count = 20'000;
    const fs::path folder = benchFolder() / "recovered";
    fs::create_directories(folder);
    for (int i = 1; i <= count; ++i) {
        const RecoveryName name = {"Ship " + std::to_string(i), 24, "2026-05-01 17.03.59",
                                   static_cast<std::uint64_t>(i)};
        std::ofstream(folder / (name.text() + ".shp"));
    }
    NoTrash trash;
    RecoveryFolder recovery(folder, [] { return std::string(); }, trash);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(recovery.lookAround());
    }
}

const bool registered = [] {
    const char* const look = "look at 20,000 designs put aside";
    benchmark::RegisterBenchmark(look, lookAtManyPutAside)
        ->Repetitions(25)
        ->Iterations(1)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
    for (auto* bench : {benchmark::RegisterBenchmark("program start", startProgram),
                        benchmark::RegisterBenchmark("bare window's start", startBareWindow)}) {
        bench->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
    }
    RegisterGoal({"Start until the window is painted: times a bare window's", "program start",
                  "bare window's start", 1.2, false});
    // The window is there by then; it must only not seem to hang.
    RegisterGoal(
        {"Look at 20,000 designs put aside: times a start", look, "program start", 1.5, false});
    return true;
}();

}  // namespace

}  // namespace fleetwright
