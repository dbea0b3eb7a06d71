#include "platform/qt/mixer_sounds.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>

#include "platform/qt/mixer.h"

namespace trameli {

namespace {

using namespace std::chrono_literals;
using Now = std::chrono::steady_clock;

/// A wave that comes later than this belongs to nothing that the player still sees.
constexpr auto Stale = 1s;
/// How often the device is asked whether it still plays.
constexpr auto Round = 500ms;
/// How long the end of the program waits for the sound system.
constexpr auto Farewell = 500ms;

}  // namespace

/// What shall be heard. There is no queue: a new wish takes the place of an old one of its kind, so
/// that a slow device never has anything to catch up with.
struct MixerSounds::Wishes {
    std::mutex Mutex;
    std::condition_variable_any Changed;

    std::optional<std::string> Wave;  ///< to be played, unless taken already
    Now::time_point WaveAsked;
    std::string Music;  ///< the open piece; empty if there is none
    bool MusicPlays = false;
    unsigned MusicTurn = 0;  ///< moves on with every change of the music
    bool Ended = false;      ///< the thread is through
};

MixerSounds::MixerSounds(LocalFileSystem files, MixerOptions options)
    : wishes_(std::make_shared<Wishes>()) {
    try {
        thread_ = std::jthread([wishes = wishes_, files = std::move(files),
                                options = std::move(options)](const std::stop_token& stop) {
            {
                Mixer mixer(files, options);
                Serve(stop, *wishes, mixer);
            }
            const std::lock_guard lock(wishes->Mutex);
            wishes->Ended = true;
            wishes->Changed.notify_all();
        });
    } catch (const std::system_error&) {
        // No thread to be had: a silent game.
    }
}

MixerSounds::~MixerSounds() {
    if (!thread_.joinable()) {
        return;
    }
    thread_.request_stop();
    std::unique_lock lock(wishes_->Mutex);
    if (!wishes_->Changed.wait_for(lock, Farewell, [this] { return wishes_->Ended; })) {
        thread_.detach();
    }
}

void MixerSounds::Serve(const std::stop_token& stop, Wishes& wishes, Mixer& mixer) {
    unsigned musicTurn = 0;
    const auto wished = [&] { return wishes.Wave || wishes.MusicTurn != musicTurn; };
    std::unique_lock lock(wishes.Mutex);
    while (!stop.stop_requested()) {
        // With the device closed nothing wakes this thread but a wish.
        const bool isWished = mixer.IsOpen() ? wishes.Changed.wait_for(lock, stop, Round, wished)
                                             : wishes.Changed.wait(lock, stop, wished);
        if (stop.stop_requested()) {
            break;
        }
        if (!isWished) {
            lock.unlock();
            mixer.Rest();
            lock.lock();
            continue;
        }
        const auto wave = std::exchange(wishes.Wave, std::nullopt);
        const auto waveAsked = wishes.WaveAsked;
        const bool newMusic = std::exchange(musicTurn, wishes.MusicTurn) != wishes.MusicTurn;
        const std::string music = wishes.MusicPlays ? wishes.Music : std::string();
        lock.unlock();
        // The wave first: it takes no time, while instruments may have to be read for the music.
        if (wave) {
            mixer.PlayWave(*wave, waveAsked + Stale);
        }
        if (newMusic && music.empty()) {
            mixer.StopMusic();
        } else if (newMusic) {
            mixer.PlayMusic(music);
        }
        lock.lock();
    }
}

void MixerSounds::PlayWave(const std::string& path) {
    const std::lock_guard lock(wishes_->Mutex);
    wishes_->Wave = path;
    wishes_->WaveAsked = Now::now();
    wishes_->Changed.notify_all();
}

void MixerSounds::OpenMusic(const std::string& path) {
    const std::lock_guard lock(wishes_->Mutex);
    wishes_->Music = path;
    wishes_->MusicPlays = false;
    ++wishes_->MusicTurn;
    wishes_->Changed.notify_all();
}

void MixerSounds::PlayMusic() {
    const std::lock_guard lock(wishes_->Mutex);
    wishes_->MusicPlays = !wishes_->Music.empty();
    ++wishes_->MusicTurn;
    wishes_->Changed.notify_all();
}

void MixerSounds::CloseMusic() {
    const std::lock_guard lock(wishes_->Mutex);
    wishes_->Music.clear();
    wishes_->MusicPlays = false;
    ++wishes_->MusicTurn;
    wishes_->Changed.notify_all();
}

}  // namespace trameli
