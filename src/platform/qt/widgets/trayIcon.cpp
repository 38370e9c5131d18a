#include "TrayIcon.h"

#include "controlWidgets.h"
#include "widgetTools.h"

#include <QSystemTrayIcon>

namespace fleetwright {

void addTrayIcon(TrayIcon& tray, QWidget* window) {
    auto* const icon = new QSystemTrayIcon(faceOf(tray.design().picture), window);
    icon->setObjectName(toQt(tray.name()));
    icon->setToolTip(toQt(tray.toolTip()));
    tray.askAvailable = [] { return QSystemTrayIcon::isSystemTrayAvailable(); };
    keepInStep(window, tray, [icon, &tray] { icon->setVisible(tray.isOn()); });
    // Later, when Qt has done with the click: the handlers may take away the icon's own window.
    QObject::connect(
        icon, &QSystemTrayIcon::activated, icon,
        [&tray](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger) {
                raise(tray.onLeftClick);
            } else if (reason == QSystemTrayIcon::Context) {
                raise(tray.onRightClick);
            }
        },
        Qt::QueuedConnection);
}

}  // namespace fleetwright
