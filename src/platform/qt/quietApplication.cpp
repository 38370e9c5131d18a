#include "quietApplication.h"

#include <QGuiApplication>

#ifdef FLEETWRIGHT_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace fleetwright {

namespace {

/// Has Qt see no font of the system, which can take longer to be listed than a page to be drawn.
void hideSystemFonts() {
#ifdef FLEETWRIGHT_FONTCONFIG
    FcConfigSetCurrent(FcConfigCreate());
#endif
}

void makeApplication() {
    hideSystemFonts();
    static char program[] = "fleetwright-cli";
    static char option[] = "-platform";
    static char platform[] = "minimal:enable_fonts";
    static char* arguments[] = {program, option, platform, nullptr};
    static int count = 3;
    // Never deleted: threads may still draw when the process ends.
    static const QGuiApplication* const application = new QGuiApplication(count, arguments);
    Q_UNUSED(application);
}

}  // namespace

void needQuietApplication() {
    // Once, while other threads wait.
    static const bool isThere =
        QCoreApplication::instance() != nullptr || (makeApplication(), true);
    Q_UNUSED(isThere);
}

}  // namespace fleetwright
