#include "Form.h"

namespace fleetwright {

Form::Form(const FormDesign& design)
    : Container(nullptr, {.name = design.name,
                          .place = {0, 0, design.width, design.height},
                          .caption = design.caption,
                          .isVisible = false}) {}

void Form::load() {
    if (!m_isLoaded) {
        m_isLoaded = true;
        Form_Load();
    }
}

void Form::show() {
    load();
    setVisible(true);
}

bool Form::unload() {
    if (!m_isLoaded || m_isUnloading) {
        return true;
    }
    bool cancel = false;
    m_isUnloading = true;
    Form_Unload(cancel);
    m_isUnloading = false;
    if (cancel) {
        return false;
    }
    m_isLoaded = false;
    hide();
    return true;
}

void Form::minimize() {
    if (!m_isMinimized) {
        m_isMinimized = true;
        Changed.raise();
    }
}

void Form::moveTo(int left, int top) {
    if (left != m_left || top != m_top) {
        m_left = left;
        m_top = top;
        Changed.raise();
    }
}

}  // namespace fleetwright
