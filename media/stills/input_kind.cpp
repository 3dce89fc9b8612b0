#include "media/stills/input_kind.h"

#include "media/stills/picture_kind.h"

extern "C"
{
#include <libavcodec/defs.h>
#include <libavformat/avformat.h>
}

#include <fstream>
#include <vector>

namespace ov1::media
{

namespace
{

enum class content
{
    still,
    clip,
    unknown,
};

/// By the first 64 KiB, followed by the zeros that libav's probes may read.
content content_of(const std::string& path)
{
    constexpr std::size_t probed = 1 << 16;
    std::vector<std::uint8_t> head(probed + AV_INPUT_BUFFER_PADDING_SIZE);
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(head.data()), probed);
    const auto count = static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0));
    if (count == 0)
        return content::unknown;
    // Stills first: libav takes single pictures for clips of one frame.
    if (kind_of({head.data(), count}, path))
        return content::still;
    AVProbeData data{};
    data.filename = "";
    data.buf = head.data();
    data.buf_size = static_cast<int>(count);
    int score = 0;
    const AVInputFormat* format = av_probe_input_format3(&data, 1, &score);
    const std::string name = format != nullptr && score > AVPROBE_SCORE_RETRY ? format->name : "";
    // Formats named ..._pipe are single pictures of kinds that are not read.
    return name.empty() || name.ends_with("_pipe") ? content::unknown : content::clip;
}

} // namespace

input_kind input_kind_of(const std::string& path)
{
    return content_of(path) == content::clip ? input_kind::clip : input_kind::still;
}

bool is_media_file(const std::string& path) { return content_of(path) != content::unknown; }

} // namespace ov1::media
