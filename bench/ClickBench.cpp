// A click on a thrust button: what the rules do until every figure is in its control, against what
// Qt takes to paint these controls.

#include "BenchWindow.h"
#include "FormWindow.h"
#include "GoalTable.h"

#include <QApplication>
#include <QLineEdit>

#include <chrono>

namespace fleetwright {

namespace {

/// A ship with a gun or two of each kind.
void fitSystems(frmMain& form) {
    form.mass.updwnMass_5.pressUp();
    int fitted = 0;
    for (const TreeView::Node& node : form.tree.tvWeapons.nodes()) {
        constexpr int wanted = 20;
        if (node.children.empty() && node.key != "Cloaking Field" && fitted < wanted) {
            form.tree.tvWeapons.select(node);
            form.tree.tvWeapons.doubleClick();
            ++fitted;
        }
    }
    form.aboard.lvCurrentWeapons.select(1);
}

void clickThrust(frmMain& form) {
    form.hull.optThrust[form.hull.optThrust[3].isOn() ? 4 : 3].choose();
}

void rules(benchmark::State& state, int records) {
    BenchWindow window(benchApplication(records));
    fitSystems(window.form());
    for ([[maybe_unused]] auto _ : state) {
        clickThrust(window.form());
    }
}

/// Notices when a widget is painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget* watched) { watched->installEventFilter(this); }

    bool isPainted = false;

    bool eventFilter(QObject* watched, QEvent* event) override {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

void painting(benchmark::State& state, int records) {
    BenchWindow window(benchApplication(records));
    FormWindow drawn(window.form());
    fitSystems(window.form());
    QApplication::processEvents();
    PaintWatch watch(drawn.findChild<QLineEdit*>("txtCost"));
    for ([[maybe_unused]] auto _ : state) {
        using Clock = std::chrono::steady_clock;
        clickThrust(window.form());
        watch.isPainted = false;
        const auto start = Clock::now();
        while (!watch.isPainted) {
            QApplication::processEvents();
        }
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
}

const bool registered = [] {
    for (const int records : {0, 10'000}) {
        const std::string catalogue =
            records == 0 ? "the delivered catalogue" : "a catalogue of " + std::to_string(records);
        const std::string own = "click on a thrust button, " + catalogue;
        const std::string peer = own + ", painting";
        benchmark::RegisterBenchmark(own.c_str(), rules, records)->Repetitions(9)->MinTime(0.1);
        benchmark::RegisterBenchmark(peer.c_str(), painting, records)
            ->UseManualTime()
            ->Repetitions(9)
            ->MinTime(0.1);
        RegisterGoal({"Click with " + catalogue + ": rules, of the time of painting", own, peer,
                      records == 0 ? 0.1 : 0.5, false});
    }
    return true;
}();

}  // namespace

}  // namespace fleetwright
