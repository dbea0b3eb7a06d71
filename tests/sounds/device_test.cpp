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
        Put("a.mid", Tune(150, 1));
    }

    /// As much as nobody could play, in no time.
    void AskForEverything() {
        for (int i = 0; i < 1000; ++i) {
            Sounds->PlayWave("P:\\long.wav");
            Sounds->PlayMusic("P:\\a.mid");
            Sounds->StopMusic();
        }
    }

    static long Threads() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/task"),
                             std::filesystem::directory_iterator());
    }
};

TEST_F(Devices, AreOpenWhileSomethingPlaysAndABitLonger) {
    MixerOptions options;
    options.Silence = 300ms;
    options.Retry = 1h;  // nothing goes wrong here
    Play(options);
    Sounds.reset();
    EXPECT_FALSE(std::filesystem::exists(PathOf("recording"))) << "opened for nothing";
    Play(options);
    Sounds->PlayMusic("P:\\a.mid");
    ASSERT_TRUE(MoreIsHeard(15));
    EXPECT_EQ(Story(), "A");
    Sounds->StopMusic();
    ASSERT_TRUE(Soon([&] { return !DeviceIsOpen(); }));
    Sounds->PlayWave("P:\\b.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "B."; }));
}

TEST_F(Devices, WithNoneNothingHappens) {
    setenv("SDL_AUDIODRIVER", "nosuch", 1);
    testing::internal::CaptureStderr();
    const auto begin = Now::now();
    Play();
    AskForEverything();
    Sounds.reset();
    EXPECT_LT(Now::now() - begin, Long);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Devices, OneThatHangsHoldsNothingUpAndBringsNoOldSounds) {
    // Opening it waits for a reader, and playing for him to read.
    const auto pipe = PathOf("hung");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    RecordTo(pipe);
    signal(SIGPIPE, SIG_IGN);
    const long threads = Threads();
    auto begin = Now::now();
    Play();
    AskForEverything();
    EXPECT_LT(Now::now() - begin, Long);
    usleep(1'300'000);  // the wish has to grow old
    const int reader = open(pipe.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    std::string heard;
    const auto listen = [&] {
        std::string bytes(65536, '\0');
        const ssize_t count = read(reader, bytes.data(), bytes.size());
        heard.append(bytes, 0, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    };
    ASSERT_TRUE(Soon([&] { return listen(), heard.size() > 100'000; }));
    EXPECT_EQ(heard.find_first_not_of('\0'), std::string::npos);

    ASSERT_TRUE(Soon([&] {
        int waiting = 0;
        ioctl(reader, FIONREAD, &waiting);
        return waiting >= 65536;  // more goes into no pipe
    }));
    usleep(200'000);  // by then somebody tries to
    begin = Now::now();
    Sounds.reset();
    EXPECT_LT(Now::now() - begin, Long);
    EXPECT_GT(Threads(), threads) << "it did not hang";
    EXPECT_TRUE(Soon([&] { return listen(), Threads() <= threads; })) << "it never ends";
    close(reader);
}

}  // namespace
}  // namespace trameli
