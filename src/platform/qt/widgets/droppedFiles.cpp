#include "Form.h"
#include "controlWidgets.h"
#include "widgetTools.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <string>
#include <vector>

namespace fleetwright {

namespace {

/// The files that a drag carries, by their paths; none if it carries anything else.
std::vector<std::string> filesIn(const QMimeData& data) {
    std::vector<std::string> files;
    for (const QUrl& url : data.urls()) {
        if (!url.isLocalFile() || !QFileInfo(url.toLocalFile()).isFile()) {
            return {};
        }
        files.push_back(pathFromQt(url.toLocalFile()));
    }
    return files;
}

}  // namespace

void takeDroppedFiles(Form& form, QWidget* window) {
    if (!form.onFilesDrop) {
        return;
    }
    window->setAcceptDrops(true);
    new EventHook(window, [&form, window](QEvent* event) {
        if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) {
            return false;
        }
        auto& drag = static_cast<QDropEvent&>(*event);
        const std::vector<std::string> files = filesIn(*drag.mimeData());
        // The files stay where they are.
        if (files.empty() || !drag.possibleActions().testFlag(Qt::CopyAction) ||
            QApplication::activeModalWidget() != nullptr) {
            return true;
        }
        drag.setDropAction(Qt::CopyAction);
        drag.accept();
        if (event->type() == QEvent::Drop) {
            // Where they come from waits for the end of this event, which is not to wait for a
            // message box.
            QMetaObject::invokeMethod(
                window, [&form, files] { form.dropFiles(files); }, Qt::QueuedConnection);
        }
        return true;
    });
}

}  // namespace fleetwright
