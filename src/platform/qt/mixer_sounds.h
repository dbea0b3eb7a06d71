// Sounds of the desktop.
#pragma once

#include <memory>
#include <string>
#include <thread>

#include "platform/qt/local_file_system.h"
#include "platform/qt/mixer_options.h"
#include "platform/sounds.h"

namespace trameli {

class Mixer;

/// Hands what is asked for to a thread that plays it, and forgets about it: a sound system that is
/// slow, hangs or is not there holds nothing up. One at a time in a process.
class MixerSounds final : public Sounds {
public:
    /// Starts nothing but the thread; the device is opened for the first sound.
    explicit MixerSounds(LocalFileSystem files, MixerOptions options = {});
    /// Ends all sounds. A thread that hangs in the sound system is left behind.
    ~MixerSounds() override;
    MixerSounds(const MixerSounds&) = delete;
    MixerSounds& operator=(const MixerSounds&) = delete;

    void PlayWave(const std::string& path) override;
    void PlayMusic(const std::string& path) override;
    void StopMusic() override;

private:
    struct Wishes;
    static void Serve(Wishes& wishes, Mixer& mixer);
    template <typename Change>
    void Wish(Change change);

    std::shared_ptr<Wishes> wishes_;  ///< also of the thread, which may live longer
    std::thread thread_;
};

}  // namespace trameli
