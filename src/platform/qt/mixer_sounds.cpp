#include "platform/qt/mixer_sounds.h"

#include <sched.h>

#include <chrono>
#include <condition_variable>
#include <exception>
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

/// Lets other threads finish what they are at when this one wakes up: the step that asks for a
/// sound is drawn first. The threads that this one starts, such as the device's, are as others are.
void StandBack() {
    const sched_param none{};
    pthread_setschedparam(pthread_self(), SCHED_BATCH | SCHED_RESET_ON_FORK, &none);
}

}  // namespace

/// What shall be heard. There is no queue: a new wish takes the place of an old one of its kind, so
/// that a slow device never has anything to catch up with.
struct MixerSounds::Wishes {
    std::mutex Mutex;
    std::condition_variable Changed;

    std::optional<std::string> Wave;  ///< to be played, unless taken already
    Now::time_point WaveAsked;
    std::string Music;       ///< the piece that plays; empty for none
    unsigned MusicTurn = 0;  ///< moves on with every change of the music
    bool Over = false;       ///< nothing shall be heard any more
    bool Ended = false;      ///< the thread is through
};

MixerSounds::MixerSounds(LocalFileSystem files, MixerOptions options)
    : wishes_(std::make_shared<Wishes>()) {
    try {
        thread_ =
            std::thread([wishes = wishes_, files = std::move(files), options = std::move(options)] {
                try {
                    StandBack();
                    Mixer mixer(files, options);
                    Serve(*wishes, mixer);
                } catch (const std::exception&) {
                    // Out of memory, say. The game goes on without sounds.
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
    Wish([](Wishes& wishes) { wishes.Over = true; });
    std::unique_lock lock(wishes_->Mutex);
    const bool ended = wishes_->Changed.wait_for(lock, Farewell, [this] { return wishes_->Ended; });
    lock.unlock();
    if (ended) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

void MixerSounds::Serve(Wishes& wishes, Mixer& mixer) {
    unsigned musicTurn = 0;
    const auto changed = [&] {
        return wishes.Over || wishes.Wave || wishes.MusicTurn != musicTurn;
    };
    std::unique_lock lock(wishes.Mutex);
    for (;;) {
        // With the device closed nothing wakes this thread but a wish.
        if (!mixer.IsOpen()) {
            wishes.Changed.wait(lock, changed);
        } else if (!wishes.Changed.wait_for(lock, Round, changed)) {
            lock.unlock();
            mixer.Rest();
            lock.lock();
            continue;
        }
        if (wishes.Over) {
            return;
        }
        const auto wave = std::exchange(wishes.Wave, std::nullopt);
        const auto waveAsked = wishes.WaveAsked;
        const bool newMusic = std::exchange(musicTurn, wishes.MusicTurn) != wishes.MusicTurn;
        const std::string music = wishes.Music;
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

/// Changes what shall be heard, and wakes the thread with no lock held for it to run into.
template <typename Change>
void MixerSounds::Wish(Change change) {
    {
        const std::lock_guard lock(wishes_->Mutex);
        change(*wishes_);
    }
    wishes_->Changed.notify_all();
}

void MixerSounds::PlayWave(const std::string& path) {
    Wish([&path](Wishes& wishes) {
        wishes.Wave = path;
        wishes.WaveAsked = Now::now();
    });
}

void MixerSounds::PlayMusic(const std::string& path) {
    Wish([&path](Wishes& wishes) {
        wishes.Music = path;
        ++wishes.MusicTurn;
    });
}

void MixerSounds::StopMusic() {
    PlayMusic({});
}

}  // namespace trameli
