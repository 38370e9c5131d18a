#include "Acts.h"

#include "Error.h"

#include <utility>

namespace fleetwright {

/// Marks that something is under way, which lets acts in or does not.
class Acts::Scope {
public:
    Scope(Acts& acts, bool letsActsIn)
        : m_acts(acts), m_didLetActsIn(std::exchange(acts.m_letsActsIn, letsActsIn)),
          m_didOnlyShow(std::exchange(acts.m_onlyShows, false)) {
        ++m_acts.m_depth;
    }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
    ~Scope() {
        --m_acts.m_depth;
        m_acts.m_letsActsIn = m_didLetActsIn;
        m_acts.m_onlyShows = m_didOnlyShow;
    }

private:
    Acts& m_acts;
    bool m_didLetActsIn;
    bool m_didOnlyShow;
};

Acts::Acts(Subject subject) : m_subject(std::move(subject)) {}

void Acts::act(const Work& change, std::string_view kind) {
    if (!m_subject.isThere() || m_onlyShows) {
        return;
    }
    if (m_depth > 0 && !m_letsActsIn) {
        change();
        return;
    }
    m_kind = m_depth == 0 ? kind : std::string_view();
    {
        const Scope scope(*this, false);
        const Work goBack = m_subject.remember();
        try {
            change();
        } catch (const OverflowError&) {
            goBack();
            m_subject.overflowed();
        }
    }
    runWaiting();
}

void Acts::showOnly(const Work& show) {
    const Scope scope(*this, false);
    m_onlyShows = true;
    show();
}

void Acts::letActsIn(const Work& turn) {
    {
        const Scope scope(*this, true);
        turn();
    }
    runWaiting();
}

void Acts::whenIdle(Work work) {
    m_waiting.push_back(std::move(work));
    runWaiting();
}

void Acts::endWhenIdle(Work end) {
    m_end = std::move(end);
    runWaiting();
}

/// Comes to rest, if nothing is under way.
void Acts::rest() {
    if (m_depth == 0 && m_subject.isThere() && m_subject.rested) {
        m_subject.rested(std::exchange(m_kind, {}));
    }
}

void Acts::runWaiting() {
    rest();
    while (m_depth == 0 && m_subject.isThere() && (m_end || !m_waiting.empty())) {
        if (m_waiting.empty()) {
            std::exchange(m_end, {})();
            continue;
        }
        const Work work = std::move(m_waiting.front());
        m_waiting.pop_front();
        {
            const Scope scope(*this, true);
            work();
        }
        rest();
    }
    if (!m_subject.isThere()) {
        m_waiting.clear();
        m_end = {};
    }
}

}  // namespace fleetwright
