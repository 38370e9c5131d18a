#pragma once

#include "Control.h"
#include "Raster.h"

namespace fleetwright {

/// A picture that is hidden until it is dragged; then it follows the pointer.
class DragImage : public Control {
public:
    DragImage(Container& container, ControlDesign design)
        : Control(&container, std::move(design)) {}

    const Raster& picture() const { return m_picture; }
    void setPicture(Raster picture) { m_picture = std::move(picture); }

    /// Begins a drag of the picture, from code. Whoever draws it drags until the user lets go.
    void drag() { DragWanted.raise(); }

    /// For whoever draws it.
    Signal<> DragWanted;

private:
    Raster m_picture;
};

}  // namespace fleetwright
