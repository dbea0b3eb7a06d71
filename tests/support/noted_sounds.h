// Sounds that nobody has to hear.
#pragma once

#include <string>
#include <vector>

#include "platform/sounds.h"

namespace trameli {

/// Notes what is asked for, in order: "wave P:\suoni\boing.wav", "music ...", "stop".
class NotedSounds final : public Sounds {
public:
    std::vector<std::string> Asked;

    void PlayWave(const std::string& path) override { Asked.push_back("wave " + path); }
    void PlayMusic(const std::string& path) override { Asked.push_back("music " + path); }
    void StopMusic() override { Asked.push_back("stop"); }
};

}  // namespace trameli
