#include "RunMarks.h"

#include <QCoreApplication>
#include <QDir>
#include <QRandomGenerator>

namespace fleetwright {

RunMarks::RunMarks(std::filesystem::path folder)
    : m_folder(std::move(folder)), m_own(std::to_string(QCoreApplication::applicationPid()) + '-' +
                                         std::to_string(QRandomGenerator::system()->generate())),
      m_lock(lockOf(m_own)) {
    QDir().mkpath(QString::fromStdString(m_folder.string()));
    m_lock.setStaleLockTime(0);  // a lock grows stale with its program, and not with time
    m_lock.tryLock();
    for (const QString& lock :
         QDir(QString::fromStdString(m_folder.string())).entryList({"*.lock"})) {
        static_cast<void>(
            isRunning(QFileInfo(lock).baseName().toStdString()));  // takes stale ones away
    }
}

bool RunMarks::isRunning(const std::string& mark) const {
    QLockFile lock(lockOf(mark));
    lock.setStaleLockTime(0);
    // Whoever gets the lock has found that its program is gone; it is given back at once.
    return !lock.tryLock() && lock.error() == QLockFile::LockFailedError;
}

QString RunMarks::lockOf(const std::string& mark) const {
    return QString::fromStdString((m_folder / (mark + ".lock")).string());
}

}  // namespace fleetwright
