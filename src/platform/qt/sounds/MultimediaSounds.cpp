#include "soundsModule.h"

#include <QAudioDevice>
#include <QEventLoop>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

namespace fleetwright {

namespace {

class MultimediaSounds : public Sounds {
public:
    bool hasDevice() override { return !QMediaDevices::audioOutputs().isEmpty(); }

    void play(const std::filesystem::path& file) override {
        // A device that takes the sound and never plays it does not hold the program up for ever.
        constexpr int longest = 10000;  // milliseconds
        QSoundEffect sound;
        QEventLoop loop;
        const auto look = [&] {
            if (sound.status() == QSoundEffect::Error ||
                (sound.status() == QSoundEffect::Ready && !sound.isPlaying())) {
                loop.quit();
            }
        };
        QObject::connect(&sound, &QSoundEffect::statusChanged, &loop, [&] {
            if (sound.status() != QSoundEffect::Ready) {
                look();
            }
        });
        QObject::connect(&sound, &QSoundEffect::playingChanged, &loop, look);
        QTimer::singleShot(longest, &loop, &QEventLoop::quit);
        sound.setSource(QUrl::fromLocalFile(QString::fromStdString(file.string())));
        if (sound.status() != QSoundEffect::Error) {
            sound.play();
            loop.exec();
        }
    }
};

}  // namespace

}  // namespace fleetwright

extern "C" Q_DECL_EXPORT fleetwright::Sounds* createSounds() {
    static fleetwright::MultimediaSounds sounds;
    return &sounds;
}
