// Makes the piece that is played at the end of a level, in the folder given: coppa.mid.
//
// Sixteen bars, half a minute: a trumpet sings, an accordion answers off the beat, bass and drums
// keep it walking.
#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr int Quaver = 48;  // ticks
constexpr int Crotchet = 2 * Quaver;
constexpr int Bar = 4 * Crotchet;
constexpr int Bars = 16;
constexpr int MicrosecondsPerCrotchet = 60'000'000 / 128;

/// Keys of middle C and of notes on the drums' channel.
constexpr int C4 = 60;
constexpr int Kick = 36, Snare = 38, ClosedHat = 42, LowTom = 45, HighTom = 50, Crash = 49;

struct Event {
    int Tick;
    int Order;  ///< at the same moment: instruments first, then ends of notes, then beginnings
    std::string Bytes;
};

std::string Message(std::initializer_list<int> bytes) {
    std::string text;
    for (const int byte : bytes) {
        text += static_cast<char>(byte);
    }
    return text;
}

std::string Number(std::uint32_t number, int bytes) {
    std::string text;
    for (int i = bytes - 1; i >= 0; --i) {
        text += static_cast<char>(number >> 8 * i & 0xff);
    }
    return text;
}

/// A number in groups of seven bits, as times are written.
std::string Delay(int ticks) {
    std::string text(1, static_cast<char>(ticks & 0x7f));
    for (ticks >>= 7; ticks > 0; ticks >>= 7) {
        text.insert(text.begin(), static_cast<char>((ticks & 0x7f) | 0x80));
    }
    return text;
}

class Track {
public:
    Track(int channel, int instrument, int volume, int pan) : channel_(channel) {
        events_.push_back({0, 0, Message({0xc0 | channel, instrument})});
        events_.push_back({0, 0, Message({0xb0 | channel, 7, volume})});
        events_.push_back({0, 0, Message({0xb0 | channel, 10, pan})});
    }

    void Note(int tick, int length, int key, int strength) {
        events_.push_back({tick, 2, Message({0x90 | channel_, key, strength})});
        events_.push_back({tick + length, 1, Message({0x80 | channel_, key, 0})});
    }

    std::string Chunk() {
        std::stable_sort(events_.begin(), events_.end(), [](const Event& a, const Event& b) {
            return a.Tick != b.Tick ? a.Tick < b.Tick : a.Order < b.Order;
        });
        std::string body;
        int now = 0;
        for (const Event& event : events_) {
            body += Delay(event.Tick - now) + event.Bytes;
            now = event.Tick;
        }
        return AsChunk(body, Bars * Bar - now);
    }

    /// A track's bytes, ending `rest` ticks after the last of them.
    static std::string AsChunk(std::string body, int rest) {
        body += Delay(std::max(rest, 0)) + Message({0xff, 0x2f, 0});
        return "MTrk" + Number(static_cast<std::uint32_t>(body.size()), 4) + body;
    }

private:
    int channel_;
    std::vector<Event> events_;
};

struct Tone {
    int Key;  ///< half-tones above middle C; Rest is silent
    int Quavers;
};
constexpr int Rest = -100;

/// The tune, a line for each bar.
constexpr Tone Tune[] = {
    {16, 1}, {16, 1}, {19, 2},   {16, 2}, {12, 2},                               //
    {17, 1}, {17, 1}, {21, 2},   {17, 2}, {12, 2},                               //
    {14, 1}, {14, 1}, {19, 2},   {17, 1}, {16, 1},   {14, 2},                    //
    {16, 3}, {12, 1}, {7, 2},    {12, 2},                                        //
    {21, 2}, {19, 1}, {16, 1},   {12, 2}, {16, 2},                               //
    {17, 2}, {16, 1}, {14, 1},   {12, 2}, {9, 2},                                //
    {11, 1}, {12, 1}, {14, 1},   {16, 1}, {17, 2},   {14, 2},                    //
    {12, 4}, {19, 2}, {Rest, 2},                                                 //
    {21, 3}, {19, 1}, {17, 2},   {21, 2},                                        //
    {19, 3}, {16, 1}, {12, 4},                                                   //
    {17, 1}, {16, 1}, {14, 2},   {11, 2}, {14, 2},                               //
    {16, 4}, {7, 2},  {12, 2},                                                   //
    {16, 1}, {16, 1}, {19, 2},   {24, 2}, {19, 2},                               //
    {21, 1}, {21, 1}, {24, 2},   {21, 2}, {17, 2},                               //
    {7, 1},  {9, 1},  {11, 1},   {12, 1}, {14, 1},   {16, 1}, {17, 1}, {19, 1},  //
    {24, 2}, {19, 1}, {16, 1},   {12, 3}, {Rest, 1},
};

struct Harmony {
    int Bass;  ///< half-tones above the C two octaves below the middle
    std::array<int, 3> Chord;
};
constexpr Harmony CMajor{0, {4, 7, 12}};
constexpr Harmony FMajor{5, {5, 9, 12}};
constexpr Harmony GMajor{7, {2, 7, 11}};
constexpr Harmony AMinor{9, {4, 9, 12}};
constexpr std::array<Harmony, Bars> Harmonies{
    CMajor, FMajor, GMajor, CMajor, AMinor, FMajor, GMajor, CMajor,
    FMajor, CMajor, GMajor, CMajor, CMajor, FMajor, GMajor, CMajor,
};

Track Melody() {
    Track track(0, 56, 80, 64);
    int tick = 0;
    for (const Tone& tone : Tune) {
        const int length = tone.Quavers * Quaver;
        if (tone.Key != Rest) {
            track.Note(tick, length * 7 / 8, C4 + tone.Key, tick % Crotchet == 0 ? 98 : 86);
        }
        tick += length;
    }
    return track;
}

Track Accordion() {
    Track track(1, 21, 61, 84);
    for (int bar = 0; bar < Bars; ++bar) {
        const Harmony& harmony = Harmonies[static_cast<std::size_t>(bar)];
        const bool last = bar == Bars - 1;
        for (int beat = 0; beat < (last ? 1 : 4); ++beat) {
            for (const int key : harmony.Chord) {
                track.Note(bar * Bar + beat * Crotchet + (last ? 2 * Crotchet : Quaver),
                           last ? 3 * Quaver : Quaver * 2 / 3, C4 + key, 72);
            }
        }
    }
    return track;
}

Track Bass() {
    Track track(2, 32, 87, 58);
    for (int bar = 0; bar < Bars; ++bar) {
        const int root = C4 - 24 + Harmonies[static_cast<std::size_t>(bar)].Bass;
        const int fifth = root - 5;
        const bool last = bar == Bars - 1;
        const int keys[] = {root, fifth, root, last ? root : root + 4};
        for (int beat = 0; beat < (last ? 2 : 4); ++beat) {
            track.Note(bar * Bar + beat * Crotchet, Crotchet * 4 / 5, keys[beat], 94);
        }
        if (last) {
            track.Note(bar * Bar + 2 * Crotchet, 3 * Quaver, root, 98);
        }
    }
    return track;
}

Track Drums() {
    Track track(9, 0, 77, 64);
    const auto hit = [&track](int bar, int quaver, int drum, int strength) {
        track.Note(bar * Bar + quaver * Quaver, Quaver / 2, drum, strength);
    };
    for (int bar = 0; bar < Bars; ++bar) {
        const bool last = bar == Bars - 1;
        const bool fill = bar == 7 || bar == 14;
        for (int quaver = 0; quaver < (last ? 4 : 8); ++quaver) {
            hit(bar, quaver, ClosedHat, quaver % 2 == 0 ? 70 : 50);
        }
        hit(bar, 0, Kick, 100);
        hit(bar, 2, Snare, 84);
        hit(bar, 4, Kick, 96);
        if (bar % 8 == 0 || last) {
            hit(bar, last ? 4 : 0, Crash, 80);
        }
        if (fill) {
            hit(bar, 4, Snare, 80);
            hit(bar, 5, HighTom, 84);
            hit(bar, 6, HighTom, 88);
            hit(bar, 7, LowTom, 92);
        } else if (!last) {
            hit(bar, 6, Snare, 84);
        }
    }
    return track;
}

}  // namespace

int main(int argc, char** argv) {
    const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
    std::ofstream file(folder / "coppa.mid", std::ios::binary);
    file << "MThd" << Number(6, 4) << Number(1, 2) << Number(5, 2) << Number(Crotchet, 2);
    const std::string beat = Message({0, 0xff, 0x58, 4, 4, 2, 24, 8});
    const std::string pace = Message({0, 0xff, 0x51, 3}) + Number(MicrosecondsPerCrotchet, 3);
    file << Track::AsChunk(beat + pace, 0);
    for (Track track : {Melody(), Accordion(), Bass(), Drums()}) {
        file << track.Chunk();
    }
    return 0;
}
