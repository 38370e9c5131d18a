#include "DragImage.h"

#include "controlWidgets.h"
#include "pictureIcon.h"
#include "widgetTools.h"

#include <QDrag>
#include <QMimeData>

namespace fleetwright {

namespace {

/// What is being dragged, and inside which window. There is one pointer, and so one drag.
struct Drag {
    DragImage* image = nullptr;
    const QWidget* window = nullptr;
};
Drag& theDrag() {
    static Drag drag;
    return drag;
}

}  // namespace

void dragImage(DragImage& image, QWidget* window, const Scale& scale) {
    if (theDrag().image != nullptr) {
        return;
    }
    theDrag() = {&image, window};
    auto* const drag = new QDrag(window);
    // Nothing outside this window can do anything with it.
    auto* const data = new QMimeData;
    data->setData("application/x-fleetwright-control", {});
    drag->setMimeData(data);
    const QSize size(scale.zoomed(image.picture().width()), scale.zoomed(image.picture().height()));
    drag->setPixmap(pictureIcon([&image] { return image.picture(); }, scale, QPalette::WindowText)
                        .pixmap(size, window->devicePixelRatio()));
    drag->setHotSpot(QRect(QPoint(), size).center());
    drag->exec(Qt::CopyAction);
    theDrag() = {};
}

DragImage* draggedImage(const QWidget* window) {
    return theDrag().window == window ? theDrag().image : nullptr;
}

}  // namespace fleetwright
