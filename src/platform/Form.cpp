#include "Form.h"

#include <utility>

namespace fleetwright {

Form::Form(const FormDesign& design)
    : Container(nullptr, {.name = design.name,
                          .place = {0, 0, design.width, design.height},
                          .caption = design.caption,
                          .isVisible = false}),
      m_border(design.border) {}

void Form::setCaption(const std::string& caption) {
    if (caption != design().caption) {
        changeableDesign().caption = caption;
        Changed.raise();
    }
}

void Form::load() {
    if (!m_isLoaded) {
        m_isLoaded = m_isNew = true;
        Form_Load();
    }
}

void Form::show() {
    load();
    setVisible(true);
    Raised.raise();
}

bool Form::unload() {
    if (!m_isLoaded || m_isUnloading) {
        return true;
    }
    bool cancel = false;
    m_isUnloading = true;
    try {
        Form_Unload(cancel);
    } catch (...) {
        m_isUnloading = false;
        throw;
    }
    m_isUnloading = false;
    if (cancel) {
        return false;
    }
    m_isLoaded = false;
    hide();
    return true;
}

void Form::setState(WindowState state) {
    if (state != m_state) {
        m_state = state;
        Changed.raise();
        Form_Resize();
    }
}

void Form::resize(int width, int height) {
    const Place inside{place().left, place().top, width - outside().width,
                       height - outside().height};
    if (inside != place()) {
        setPlace(inside);
        Form_Resize();
    }
}

void Form::moveTo(int left, int top) {
    if (left != m_left || top != m_top) {
        m_left = left;
        m_top = top;
        Changed.raise();
    }
}

void Form::setTopmost(bool isTopmost) {
    if (isTopmost != m_isTopmost) {
        m_isTopmost = isTopmost;
        Changed.raise();
    }
}

void Form::setZoom(Zoom zoom) {
    if (zoom != m_zoom) {
        m_zoom = zoom;
        Zoomed.raise();
    }
}

void Form::setPicture(Raster picture) {
    m_picture = std::move(picture);
    Changed.raise();
}

}  // namespace fleetwright
