// What a clip is: size, rate, duration, samples, and the streams in its file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ov1::media
{

enum class stream_fate
{
    graded,
    copied,   ///< as it is, without decoding
    remade,   ///< written by the muxer from the file's metadata, such as a timecode track
    left_out, ///< the container cannot hold it
};

struct clip_stream
{
    std::string name; ///< "audio 1 (aac, deu)"
    stream_fate fate = stream_fate::copied;
    std::string note; ///< how it is written, or why it is left out; may be empty
};

struct clip_info
{
    std::size_t width = 0;  ///< pixels, as stored
    std::size_t height = 0; ///< pixels, as stored
    double frames_per_second = 0;
    double duration_s = 0;
    std::uint64_t frames = 0; ///< as the file says, else from rate and duration; 0 if unknown
    int turned_by = 0;        ///< degrees clockwise to stand upright: 0, 90, 180 or 270
    std::string container;    ///< "mov", "matroska", ...
    std::string codec;        ///< libav's name, with the profile where it matters
    std::string pixel_format; ///< libav's name
};

/// A part of the clip that could not be decoded, or only with concealed errors.
struct clip_damage
{
    double time_s = 0;
    std::string reason;
};

} // namespace ov1::media
