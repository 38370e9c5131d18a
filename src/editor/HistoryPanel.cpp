#include "HistoryPanel.h"

#include "Clock.h"
#include "text.h"

#include <utility>

namespace fleetwright {

HistoryPanel::HistoryPanel(const PanelContext& context, MenuEntry& mnuDesign, Others others)
    : Panel(context), m_design(mnuDesign), m_others(std::move(others)) {}

void HistoryPanel::begin() {
    if (services().hasScreen) {  // else nobody is there to take anything back
        m_history.emplace(m_others.moment(), m_others.safe());
        m_isReplaced = m_isSaved = false;
    }
}

void HistoryPanel::rest(std::string_view kind) {
    if (!m_history) {
        return;
    }
    const DesignMoment moment = m_others.moment();
    Clock* const clock = services().clock;
    const History::News news = {.isReplaced = std::exchange(m_isReplaced, false),
                                .isSaved = std::exchange(m_isSaved, false),
                                .kind = clock == nullptr ? std::string_view() : kind,
                                .time = clock == nullptr ? 0 : clock->tickCount(),
                                .safe = m_others.safe(),
                                .came = whatCame(moment),
                                .found = std::exchange(m_found, {})};
    const std::size_t before = m_history->place();
    if (const auto steps = std::exchange(m_adopted, std::nullopt)) {
        m_history->adopt(*steps, moment, news);
    } else {
        m_history->note(moment, news);
    }
    m_newStep = m_history->place() > before ? m_history->undoName() : "";
    show();
}

/// What has brought a design that is not the one from before.
std::string HistoryPanel::whatCame(const DesignMoment& moment) const {
    const ShipState& state = moment.ship;
    if (!state.g_sTrimmedFileName.empty()) {
        return "Load " + shownText(state.g_sTrimmedFileName);
    }
    return state.g_bSaved ? "New Ship" : "Open " + shownText(state.g_sShipName);
}

std::string HistoryPanel::steps() const {
    return m_history ? m_history->steps().text() : std::string();
}

bool HistoryPanel::adopt(const std::string& steps, const std::string& shipFile) {
    std::optional<StoredSteps> stored = StoredSteps::of(steps, ship());
    const DesignMoment opened = m_others.moment();
    const bool isFound = stored && stored->goTo([&](const DesignMoment& moment) {
        ship().restore(moment.ship);
        return ship().shipFile() == shipFile;
    });
    if (!isFound) {
        ship().restore(opened.ship);
        return false;
    }
    // It has no file: what was one may have become anything since then.
    stored->now.ship.g_bSaved = false;
    m_others.goBackTo(stored->now);
    m_adopted = std::move(stored);
    return true;
}

void HistoryPanel::mnuUndo_Click() {
    go("Undo: ", Way::Back);
}

void HistoryPanel::mnuRedo_Click() {
    go("Redo: ", Way::Forth);
}

void HistoryPanel::go(const char* what, Way way) {
    window().acts.whenIdle([this, what, way] {
        const bool isBack = way == Way::Back;
        if (!m_history || !(isBack ? m_history->canUndo() : m_history->canRedo())) {
            return;
        }
        // The next step may cut off the way back to a design that is in no file.
        if (m_history->leavesDocument(way) && !m_others.giveUp()) {
            return;
        }
        const std::string name = isBack ? m_history->undoName() : m_history->redoName();
        const DesignMoment& moment = isBack ? m_history->undo() : m_history->redo();
        m_others.isSafe(m_history->safe());
        m_others.goBackTo(moment);
        window().say(what + name);
    });
}

void HistoryPanel::show() {
    mnuUndo.setObject("Undo", m_history->canUndo() ? m_history->undoName() : "");
    mnuRedo.setObject("Redo", m_history->canRedo() ? m_history->redoName() : "");
}

}  // namespace fleetwright
