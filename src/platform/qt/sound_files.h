// What may be handed to the sound library.
#pragma once

#include <string>
#include <string_view>

namespace trameli {

/// True for an uncompressed mono or stereo wave of 8 or 16 bits at a usual rate. The file's name
/// says nothing about that, and a few bytes of an odd header can ask a decoder for any amount of
/// memory and time.
bool IsPlainWave(std::string_view bytes);

/// Where a plain wave says that it is longer than it is, gives it its true length: a decoder makes
/// room for what it is told, up to 4 GB.
void CorrectLength(std::string& wave);

/// True for a file that begins as MIDI does.
bool IsMidi(std::string_view bytes);

}  // namespace trameli
