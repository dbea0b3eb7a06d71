// Devices that are not there, go away or hang.
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iterator>
#include <string>

#include "recorded_sounds.h"

namespace trameli {
namespace {

using namespace std::chrono_literals;
using Now = std::chrono::steady_clock;

/// What no call and no end of the program may reach, on the slowest of machines.
constexpr auto Long = 3s;

class Devices : public RecordedSounds {
protected:
    Devices() {
        Put("a.wav", Tone(PitchA, 0.5));
        Put("b.wav", Tone(PitchB, 0.5));
        Put("long.wav", Tone(PitchA, 20));
        Put("ab.mid", Tune(100, 1));
    }

    /// Steps through a maze for so long.
    void AskFor(std::chrono::milliseconds time) {
        for (const auto end = Now::now() + time; Now::now() < end; usleep(1000)) {
            Sounds->PlayWave("P:\\a.wav");
        }
    }

    /// As much as nobody could play, in no time.
    void AskForEverything() {
        for (int i = 0; i < 1000; ++i) {
            Sounds->PlayWave("P:\\a.wav");
            Sounds->OpenMusic("P:\\ab.mid");
            Sounds->PlayMusic();
            Sounds->CloseMusic();
        }
    }

    /// A device that takes what is played only while somebody reads: a sound server that hangs.
    void Hang() {
        ASSERT_EQ(mkfifo(Pipe.c_str(), 0600), 0);
        RecordTo(Pipe);
        signal(SIGPIPE, SIG_IGN);
    }

    /// The other end of a hung device. Opening it lets the device be opened.
    int OpenReader() const { return open(Pipe.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); }

    /// What is played by and by; empty if nothing comes.
    static std::string ReadFrom(int reader) {
        std::string bytes(65536, '\0');
        const ssize_t count = read(reader, bytes.data(), bytes.size());
        bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        return bytes;
    }

    /// Reads until all threads that began after the first `threads` are gone.
    void LetGo(int reader, long threads) const {
        EXPECT_TRUE(Soon([&] {
            ReadFrom(reader);
            return Threads() <= threads;
        }));
        close(reader);
    }

    const std::filesystem::path Pipe = PathOf("hung");

    static long Threads() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/task"),
                             std::filesystem::directory_iterator());
    }
};

TEST_F(Devices, NoneIsOpenedBeforeTheFirstSound) {
    Play();
    Sounds->CloseMusic();
    Sounds->OpenMusic("P:\\ab.mid");
    Sounds->CloseMusic();
    Sounds.reset();
    EXPECT_FALSE(std::filesystem::exists(PathOf("recording")));
}

TEST_F(Devices, ItIsGivenBackAfterSomeSilenceAndOpenedAgain) {
    MixerOptions options;
    options.Silence = 300ms;
    Play(options);
    Sounds->PlayWave("P:\\a.wav");
    ASSERT_TRUE(Soon([&] { return Story() == "A."; }));
    ASSERT_TRUE(Soon([&] { return !DeviceIsOpen(); }));
    Sounds->PlayWave("P:\\b.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "B."; }));
    // The one decoded for the device before serves this one as well.
    Sounds->PlayWave("P:\\a.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "B.A."; }));
}

TEST_F(Devices, ItIsKeptAsLongAsSomethingPlays) {
    setenv("SDL_DISKAUDIODELAY", "20", 1);
    MixerOptions options;
    options.Silence = 100ms;
    Play(options);
    Put("a.wav", Tone(PitchA, 3));
    Sounds->PlayWave("P:\\a.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "A."; }));
    Sounds->OpenMusic("P:\\ab.mid");
    Sounds->PlayMusic();
    ASSERT_TRUE(Soon([&] { return Story().ends_with("A"); }));
    ASSERT_TRUE(MoreIsHeard(2));
    EXPECT_TRUE(DeviceIsOpen());
}

TEST_F(Devices, WithNoneNothingHappens) {
    for (const char* driver : {"nosuch", "dummy"}) {
        setenv("SDL_AUDIODRIVER", driver, 1);
        testing::internal::CaptureStderr();
        const auto begin = Now::now();
        Play();
        AskForEverything();
        Sounds.reset();
        EXPECT_LT(Now::now() - begin, Long);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    }
}

TEST_F(Devices, OneThatWentWrongIsTriedAgainAfterAWhileAndNoSooner) {
    for (const auto retry : {200ms, 10'000ms}) {
        for (const bool opens : {false, true}) {
            const auto later =
                PathOf((opens ? "opened" : "missing") + std::to_string(retry.count()));
            RecordTo(opens ? "/dev/full" : later / "recording");  // that one fails when written to
            MixerOptions options;
            options.Retry = retry;
            Play(options);
            if (opens) {
                Sounds->PlayWave("P:\\a.wav");
                ASSERT_TRUE(Soon([&] { return DeviceIsOpen(); }));
            } else {
                AskFor(300ms);
            }
            std::filesystem::create_directory(later);
            RecordTo(later / "recording");
            AskFor(600ms);  // no pause in which the loss would be noticed by itself
            EXPECT_EQ(std::filesystem::exists(later / "recording"), retry == 200ms) << later;
        }
    }
}

TEST_F(Devices, OneThatHangsHoldsUpNeitherCallsNorTheEnd) {
    Hang();
    for (const bool inTheMiddle : {false, true}) {
        const long threads = Threads();
        int reader = inTheMiddle ? OpenReader() : -1;
        Play();
        Sounds->PlayWave("P:\\long.wav");
        ASSERT_TRUE(!inTheMiddle || Soon([&] {
            int waiting = 0;
            ioctl(reader, FIONREAD, &waiting);
            return waiting >= 65536;  // more goes into no pipe
        }));
        const auto begin = Now::now();
        AskForEverything();
        usleep(300'000);  // what hangs in the opening cannot be seen from here
        Sounds.reset();
        EXPECT_LT(Now::now() - begin, Long);
        EXPECT_GT(Threads(), threads) << "it did not hang";
        reader = inTheMiddle ? reader : OpenReader();
        LetGo(reader, threads);
    }
}

TEST_F(Devices, AWaveAskedForInAHangIsNotHeardAfterIt) {
    Hang();
    const long threads = Threads();
    Play();
    Sounds->PlayWave("P:\\long.wav");
    usleep(1'300'000);  // the wish has to grow old
    const int reader = OpenReader();
    std::string heard;
    ASSERT_TRUE(Soon([&] { return (heard += ReadFrom(reader)).size() > 100'000; }));
    EXPECT_EQ(heard.find_first_not_of('\0'), std::string::npos);
    Sounds.reset();
    LetGo(reader, threads);
}

TEST_F(Devices, TheProgramEndsInTheMiddleOfEverything) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const auto playAndEnd = [this](bool hangs) {
        if (hangs) {
            Hang();
        }
        Play();
        Sounds->OpenMusic("P:\\ab.mid");
        Sounds->PlayMusic();
        Sounds->PlayWave("P:\\long.wav");
        if (hangs) {
            usleep(300'000);
        } else {
            Soon([&] { return Story().starts_with("A"); });
        }
        Sounds.reset();
        // Nothing is destroyed on this way out, so the folder goes by hand.
        std::filesystem::remove_all(PathOf(""));
        std::exit(0);
    };
    const auto begin = Now::now();
    EXPECT_EXIT(playAndEnd(false), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(playAndEnd(true), testing::ExitedWithCode(0), "");
    EXPECT_LT(Now::now() - begin, 10 * Long);
}

}  // namespace
}  // namespace trameli
