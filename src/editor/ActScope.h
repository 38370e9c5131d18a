#pragma once

#include "frmMain.h"

#include <utility>

namespace fleetwright {

/// Marks that an act is under way.
class frmMain::ActScope {
public:
    explicit ActScope(frmMain& window)
        : m_window(window), m_wasInTurn(std::exchange(window.m_isInTurn, false)) {
        ++m_window.m_actDepth;
    }
    ActScope(const ActScope&) = delete;
    ActScope& operator=(const ActScope&) = delete;
    ~ActScope() {
        --m_window.m_actDepth;
        m_window.m_isInTurn = m_wasInTurn;
    }

private:
    frmMain& m_window;
    bool m_wasInTurn;
};

}  // namespace fleetwright
