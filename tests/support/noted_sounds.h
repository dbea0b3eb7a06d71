// Sounds that nobody has to hear.
#pragma once

#include <string>
#include <vector>

#include "platform/sounds.h"

namespace trameli {

/// Notes what is asked for, in order: "wave P:\suoni\boing.wav", "open ...", "play", "close".
class NotedSounds final : public Sounds {
public:
    std::vector<std::string> Asked;

    void PlayWave(const std::string& path) override { Asked.push_back("wave " + path); }
    void OpenMusic(const std::string& path) override { Asked.push_back("open " + path); }
    void PlayMusic() override { Asked.push_back("play"); }
    void CloseMusic() override { Asked.push_back("close"); }
};

}  // namespace trameli
