// The sound devices of Windows, which brings a player along.

#include "soundsModule.h"

#include <QEventLoop>
#include <QTimer>

#include <windows.h>

#include <mmsystem.h>

#include <thread>

namespace fleetwright {

namespace {

class PlayerSounds : public Sounds {
public:
    bool hasDevice() override { return waveOutGetNumDevs() > 0; }

    void play(const std::filesystem::path& file) override {
        // A device that takes the sound and never plays it does not hold the program up for ever.
        constexpr int longest = 10000;  // milliseconds
        QEventLoop loop;
        std::thread player([&] {
            PlaySoundW(file.c_str(), nullptr, SND_FILENAME | SND_SYNC | SND_NODEFAULT);
            QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
        });
        QTimer::singleShot(longest, &loop, [] { PlaySoundW(nullptr, nullptr, 0); });
        loop.exec();
        player.join();
    }
};

}  // namespace

}  // namespace fleetwright

extern "C" Q_DECL_EXPORT fleetwright::Sounds* createSounds() {
    static fleetwright::PlayerSounds sounds;
    return &sounds;
}
