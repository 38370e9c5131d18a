#include "picturesModule.h"

#include "QtMessages.h"
#include "QtPictureFiles.h"
#include "pagePixels.h"

#include <QThread>

#include <chrono>
#include <future>
#include <memory>
#include <system_error>
#include <thread>

namespace {

/// Qt takes the first thread that meets it for the program's main one, and leaves its plug-ins to
/// that until the program ends. Those that decode pictures for the tool end before; so it gets one
/// that never does.
bool giveQtItsThread() {
    const auto isThere = std::make_shared<std::promise<void>>();
    try {
        std::thread([isThere] {
            QThread::currentThread();
            isThere->set_value();
            for (;;) {
                std::this_thread::sleep_for(std::chrono::hours(1));
            }
        }).detach();
    } catch (const std::system_error&) {
        return false;  // none is granted, so that none ends before this one
    }
    isThere->get_future().wait();
    return true;
}

}  // namespace

extern "C" Q_DECL_EXPORT const fleetwright::Pictures* createPictures() {
    using namespace fleetwright;
    [[maybe_unused]] static const bool hasThread = giveQtItsThread();
    QtMessages::silence();  // the tool has its own words for what goes wrong
    static QtPictureFiles files;
    static const Pictures pictures{files, files, pagePixels};
    return &pictures;
}
