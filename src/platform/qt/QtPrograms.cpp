#include "QtPrograms.h"

#include "modules.h"

#include <QElapsedTimer>
#include <QProcess>

namespace fleetwright {

bool QtPrograms::run(const std::filesystem::path& program, const std::string& argument,
                     const std::filesystem::path& folder, int milliseconds,
                     const std::function<void()>& onWait) {
    constexpr int step = 50;  // milliseconds between two looks
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setWorkingDirectory(QString::fromStdString(folder.string()));
    QElapsedTimer waiting;
    waiting.start();
    process.start(QString::fromStdString(program.string()), {QString::fromStdString(argument)});
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(step)) {
        onWait();
        if (waiting.elapsed() >= milliseconds) {
            process.kill();
            process.waitForFinished();
            return false;
        }
    }
    return process.error() != QProcess::FailedToStart &&
           process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool QtPrograms::start(const std::filesystem::path& program) {
    return QProcess::startDetached(QString::fromStdString(program.string()), {});
}

void* QtPrograms::loadLibrary(const std::filesystem::path& file) {
    return loadModule(file);
}

void* QtPrograms::function(void* library, const std::string& name) {
    return moduleSymbol(library, name.c_str());
}

void QtPrograms::freeLibrary(void* library) {
    freeModule(library);
}

}  // namespace fleetwright
