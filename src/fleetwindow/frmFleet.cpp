#include "frmFleet.h"

#include "Clock.h"
#include "fleetName.h"
#include "paths.h"
#include "text.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

namespace fleetwright {

namespace {

constexpr int smallestWidth = 10050, smallestHeight = 7350;  // twips, of the inside

}  // namespace

frmFleet::frmFleet(FleetServices services)
    : Form({.name = "frmFleet",
            .caption = "Fleet",
            .width = 11400,
            .height = 8250,
            .border = Border::Sizable}),
      m_services(std::move(services)), m_document(m_services.appFolder / "ships"),
      m_look(m_services.readShip),
      m_context{.form = *this,
                .document = m_document,
                .services = m_services,
                .rows = m_rows,
                .sum = m_sum,
                .unread = [this] { return m_look.unread(); },
                .act = [this](const FleetAct& step,
                              const std::function<void(Fleet&)>& change) { act(step, change); },
                .refresh = [this] { refresh(); },
                .say = [this](const std::string& text) { sbFleet.setText(text); },
                .takeBack = [this](const std::string& text) { sbFleet.takeBack(text); },
                .restart = [this] { restart(); }} {
    onFilesDrop = [this](const std::vector<std::string>& dropped) {
        if (std::ranges::none_of(dropped, isFleetName)) {
            ships.addFiles(dropped);
        } else if (dropped.size() == 1) {
            openFleet(dropped.front());
        } else {
            sbFleet.setText("One fleet at a time can be opened, and none together with ships");
        }
    };
    placeParts();
}

void frmFleet::Form_Load() {
    sbFleet.setText("");
    m_toldSums.reset();
    restart();
}

void frmFleet::Form_Unload(bool& cancel) {
    cancel = !recovery.giveUpFleet(m_services.confirmsExit);
    if (!cancel && !m_document.isSaved()) {
        m_document.begin({}, m_services.appFolder / "ships");
    }
}

void frmFleet::bringUp() {
    if (isLoaded() && state() == WindowState::Minimized) {
        setState(WindowState::Normal);
    }
    show();
}

void frmFleet::openFleet(const std::string& file) {
    bringUp();
    files.open(nativePath(file));
}

void frmFleet::openPutAside(const std::filesystem::path& file) {
    bringUp();
    files.openPutAside(file);
}

void frmFleet::lookAgain() {
    if (isLoaded()) {
        std::string catalogue = m_services.catalogue();
        const bool isOther = catalogue != m_catalogue;
        m_catalogue = std::move(catalogue);
        m_look.lookAgain(isOther);
        refresh();
    }
}

void frmFleet::restart() {
    m_catalogue = m_services.catalogue();
    m_look.begin(m_document.folder());
    ships.lvShips.clear();
    refresh();
}

void frmFleet::act(const FleetAct& act, const std::function<void(Fleet&)>& change) {
    if (!m_isShowing) {
        m_document.act(act, change, m_services.clock.tickCount());
        refresh();
    }
}

void frmFleet::refresh() {
    if (std::exchange(m_isShowing, true)) {
        return;
    }
    // However it ends: the next act is to count.
    const std::unique_ptr<bool, void (*)(bool*)> showing(&m_isShowing,
                                                         [](bool* is) { *is = false; });
    m_rows = m_look.rowsOf(m_document.fleet());
    if (m_look.unread() > 0 && m_services.canReadShips()) {
        constexpr std::uint32_t shortTime = 50;  // milliseconds
        m_look.readSome([&clock = m_services.clock, begin = m_services.clock.tickCount()] {
            return ticksBetween(begin, clock.tickCount()) >= shortTime;
        });
        m_rows = m_look.rowsOf(m_document.fleet());
    }
    tmrLook.setEnabled(m_look.unread() > 0);
    m_sum = fleetSum(m_document.fleet(), m_rows);
    head.show();
    ships.show();
    sums.show();
    ship.show();
    limits.show();
    files.show();
    output.show();
    recovery.noteChange();
    tellSums();
}

/// What has stood on the status line for a whole turn says nothing new. And what could not be put
/// aside may find room now.
void frmFleet::tmrFleetStatus_Timer() {
    if (isLoaded()) {
        sbFleet.wipe(m_lastStatus);
        recovery.noteChange();
    }
}

/// What the fleet comes to, for who cannot see it change.
void frmFleet::tellSums() {
    const std::string warning = sums.lblWarning.caption();
    std::string text = sums.lblSum.caption() + (warning.empty() ? "" : ". " + warning);
    if (m_look.unread() == 0 && text != m_toldSums) {
        if (m_toldSums) {
            sbFleet.tell(text);
        }
        m_toldSums = std::move(text);
    }
}

void frmFleet::Form_Resize() {
    if (state() == WindowState::Normal &&
        (place().width < smallestWidth || place().height < smallestHeight)) {
        resize(std::max(place().width, smallestWidth) + frameWidth,
               std::max(place().height, smallestHeight) + frameHeight);
        return;
    }
    placeParts();
}

/// The list takes what room there is; what is about single things keeps its height below.
void frmFleet::placeParts() {
    constexpr int edge = 150, listTop = 600, buttonWidth = 1860, below = 2400;
    const int width = place().width - 2 * edge;
    const int belowTop = place().height - StatusBar::height - edge / 2 - below;
    const int listHeight = belowTop - FleetSumPanel::height - 2 * edge / 2 - listTop;
    ships.place({edge, listTop, width - buttonWidth - edge, listHeight},
                edge + width - buttonWidth);
    sums.place(edge, listTop + listHeight + edge / 2, width);
    const int limitsWidth = 3900, rest = width - limitsWidth - 2 * edge;
    const int shipWidth = rest * 5 / 8;
    ship.place({edge, belowTop, shipWidth, below});
    limits.place({2 * edge + shipWidth, belowTop, limitsWidth, below});
    head.place({3 * edge + shipWidth + limitsWidth, belowTop, rest - shipWidth, below});
}

}  // namespace fleetwright
