#include "QtClock.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace fleetwright {

std::int32_t QtClock::tickCount() {
    return static_cast<std::int32_t>(QDeadlineTimer::current(Qt::PreciseTimer).deadline());
}

void QtClock::sleep(int milliseconds) {
    QEventLoop loop;
    QTimer alarm;
    alarm.setTimerType(Qt::PreciseTimer);
    QObject::connect(&alarm, &QTimer::timeout, &loop, &QEventLoop::quit);
    alarm.start(milliseconds);
    loop.exec();
}

}  // namespace fleetwright
