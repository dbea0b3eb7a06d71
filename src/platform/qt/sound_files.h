// What may be handed to the sound library.
#pragma once

#include <string_view>

namespace trameli {

/// True for an uncompressed mono or stereo wave of 8 or 16 bits at a usual rate. The file's name
/// says nothing about that, and a few bytes of an odd header can ask a decoder for any amount of
/// memory and time.
bool IsPlainWave(std::string_view bytes);

/// True for a file that begins as MIDI does.
bool IsMidi(std::string_view bytes);

}  // namespace trameli
