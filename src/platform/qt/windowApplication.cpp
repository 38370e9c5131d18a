#include "windowApplication.h"

#include <cstdio>
#include <cstdlib>

namespace fleetwright {

namespace {

/// Ends the process where Qt would abort it: it has found no display. What has kept it from one is
/// the first thing that it says of platforms; what it says if all goes well is of no use to
/// anybody.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    static thread_local QString reason;
    if (reason.isEmpty() && (type == QtFatalMsg ||
                             QLatin1String(context.category).startsWith(QLatin1String("qt.qpa")))) {
        reason = text.simplified();
    }
    if (type != QtFatalMsg) {
        return;
    }
    std::fprintf(stderr, "FleetWright: no display answers: %s\n", qUtf8Printable(reason));
    std::_Exit(1);
}

/// Takes what Qt says until it has found a display.
class DisplayWatch {
public:
    DisplayWatch() : m_before(qInstallMessageHandler(endWithoutDisplay)) {}
    DisplayWatch(const DisplayWatch&) = delete;
    DisplayWatch& operator=(const DisplayWatch&) = delete;
    ~DisplayWatch() { qInstallMessageHandler(m_before); }

private:
    QtMessageHandler m_before;
};

}  // namespace

QApplication windowApplication(int& argc, char** argv) {
    const DisplayWatch watch;
    return QApplication(argc, argv);
}

}  // namespace fleetwright
