#include "media/clips/clip_codec.h"

#include "media/base/failures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string_view>

namespace ov1::media
{

namespace
{

/// The scale of a codec's quality.
enum class scale
{
    none,      ///< lossless, or the profile is the quality
    crf,       ///< an option, 0 the best
    quantizer, ///< a fixed quantizer, 2 the best
};

struct codec_row
{
    std::string_view name;
    AVCodecID id;
    const char* encoder;
    scale quality;
    int worst;           ///< of the scale
    int usual;           ///< at which losses are hard to see
    const char* options; ///< "name=value name=value"
};

/// The first row of an id is the one for a source of that codec. Names with a profile follow the name without.
constexpr std::array<codec_row, 25> rows{{
    {"h264", AV_CODEC_ID_H264, "libx264", scale::crf, 51, 18, ""},
    {"hevc", AV_CODEC_ID_HEVC, "libx265", scale::crf, 51, 20, "x265-params=log-level=error"},
    {"av1", AV_CODEC_ID_AV1, "libsvtav1", scale::crf, 63, 24, ""},
    {"vp9", AV_CODEC_ID_VP9, "libvpx-vp9", scale::crf, 63, 20, "b=0 row-mt=1 cpu-used=2"},
    {"mpeg2", AV_CODEC_ID_MPEG2VIDEO, "mpeg2video", scale::quantizer, 31, 2, ""},
    {"mpeg4", AV_CODEC_ID_MPEG4, "mpeg4", scale::quantizer, 31, 2, ""},
    {"mjpeg", AV_CODEC_ID_MJPEG, "mjpeg", scale::quantizer, 31, 2, ""},
    {"prores", AV_CODEC_ID_PRORES, "prores_ks", scale::none, 0, 0, ""},
    {"prores_proxy", AV_CODEC_ID_PRORES, "prores_ks", scale::none, 0, 0, "profile=0"},
    {"prores_lt", AV_CODEC_ID_PRORES, "prores_ks", scale::none, 0, 0, "profile=1"},
    {"prores_standard", AV_CODEC_ID_PRORES, "prores_ks", scale::none, 0, 0, "profile=2"},
    {"prores_hq", AV_CODEC_ID_PRORES, "prores_ks", scale::none, 0, 0, "profile=3"},
    {"prores_4444", AV_CODEC_ID_PRORES, "prores_ks", scale::none, 0, 0, "profile=4"},
    {"prores_4444xq", AV_CODEC_ID_PRORES, "prores_ks", scale::none, 0, 0, "profile=5"},
    {"dnxhr", AV_CODEC_ID_DNXHD, "dnxhd", scale::none, 0, 0, ""},
    {"dnxhr_lb", AV_CODEC_ID_DNXHD, "dnxhd", scale::none, 0, 0, "profile=dnxhr_lb"},
    {"dnxhr_sq", AV_CODEC_ID_DNXHD, "dnxhd", scale::none, 0, 0, "profile=dnxhr_sq"},
    {"dnxhr_hq", AV_CODEC_ID_DNXHD, "dnxhd", scale::none, 0, 0, "profile=dnxhr_hq"},
    {"dnxhr_hqx", AV_CODEC_ID_DNXHD, "dnxhd", scale::none, 0, 0, "profile=dnxhr_hqx"},
    {"dnxhr_444", AV_CODEC_ID_DNXHD, "dnxhd", scale::none, 0, 0, "profile=dnxhr_444"},
    {"ffv1", AV_CODEC_ID_FFV1, "ffv1", scale::none, 0, 0, "level=3 slices=16 slicecrc=1"},
    {"utvideo", AV_CODEC_ID_UTVIDEO, "utvideo", scale::none, 0, 0, ""},
    {"huffyuv", AV_CODEC_ID_HUFFYUV, "huffyuv", scale::none, 0, 0, ""},
    {"v210", AV_CODEC_ID_V210, "v210", scale::none, 0, 0, ""},
    {"rawvideo", AV_CODEC_ID_RAWVIDEO, "rawvideo", scale::none, 0, 0, ""},
}};

/// Without the profiles: "h264, hevc, ...".
std::string all_names()
{
    std::string text;
    for (const codec_row& row : rows)
        if (row.name.find('_') == std::string_view::npos)
            text.append(text.empty() ? "" : ", ").append(row.name);
    return text;
}

const codec_row* find_row(std::string_view name)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const codec_row& r) { return r.name == name; });
    return found != rows.end() ? &*found : nullptr;
}

const codec_row* find_row(AVCodecID id)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const codec_row& r) { return r.id == id; });
    return found != rows.end() ? &*found : nullptr;
}

/// Lossless codecs need no settings, so every one that libav encodes can be written.
const AVCodec* lossless_encoder(AVCodecID id)
{
    const AVCodecDescriptor* descriptor = avcodec_descriptor_get(id);
    const bool is_lossless = descriptor != nullptr && (descriptor->props & AV_CODEC_PROP_LOSSLESS) != 0 &&
                             (descriptor->props & AV_CODEC_PROP_LOSSY) == 0;
    return is_lossless ? avcodec_find_encoder(id) : nullptr;
}

/// The source's profile, or one that can store its samples.
void add_profile(const codec_row& row, const AVCodecParameters& source, const frame_form& form, clip_codec& codec)
{
    const bool is_full_chroma = form.family == colour_family::rgb || !form.shares_chroma();
    if (row.name == "prores")
    {
        const bool same = source.codec_id == row.id && source.profile >= 0;
        const int least = is_full_chroma ? 4 : 0, most = is_full_chroma ? 5 : 3;
        constexpr int hq = 3;
        codec.options.emplace_back("profile", std::to_string(std::clamp(same ? source.profile : hq, least, most)));
    }
    else if (row.name == "dnxhr")
    {
        constexpr std::array names{"", "dnxhr_lb", "dnxhr_sq", "dnxhr_hq", "dnxhr_hqx", "dnxhr_444"};
        const bool same = source.codec_id == row.id && source.profile >= 1 && source.profile <= 5;
        const int fitting = is_full_chroma ? 5 : form.bits > 8 ? 4 : 3;
        codec.options.emplace_back("profile", names[same ? source.profile : fitting]);
    }
}

/// Options as rows hold them: "name=value name=value".
void add_options(std::string_view text, clip_codec& codec)
{
    while (!text.empty())
    {
        const std::string_view one = text.substr(0, text.find(' '));
        const std::size_t equals = one.find('=');
        codec.options.emplace_back(one.substr(0, equals), one.substr(equals + 1));
        text.remove_prefix(std::min(text.size(), one.size() + 1));
    }
}

/// Maps 1..100 onto the codec's scale, linearly from its best at 100 towards its worst; the usual value without a
/// request.
result<> set_quality(const codec_row& row, const clip_request& request, clip_codec& codec)
{
    if (row.quality == scale::none)
    {
        const bool has_profiles = row.id == AV_CODEC_ID_PRORES || row.id == AV_CODEC_ID_DNXHD;
        if (request.quality)
            return unsupported(codec.name + " has no quality to choose",
                               has_profiles ? "ask for a profile, as in --codec prores_lt or dnxhr_sq"
                                            : "leave --quality out");
        return {};
    }
    constexpr int best_quantizer = 2;
    const int best = row.quality == scale::crf ? 0 : best_quantizer;
    const double from_best = (100 - request.quality.value_or(100)) / 100.0;
    const int value =
        request.quality ? static_cast<int>(std::lround(best + from_best * (row.worst - best))) : row.usual;
    if (row.quality == scale::crf)
        codec.options.emplace_back("crf", std::to_string(value));
    else
        codec.quantizer = value;
    return {};
}

/// A cost for what is lost and, much lower, for what is added; less is better. Losing alpha costs as much as three
/// bits, losing a step of chroma a little less than one bit.
int loss(const frame_form& from, const frame_form& to)
{
    const auto lost = [](int before, int after, int weight_lost, int weight_added)
    { return before > after ? (before - after) * weight_lost : (after - before) * weight_added; };
    const auto chroma = [](const frame_form& f, const chroma_axis& axis)
    { return f.family == colour_family::gray ? -3 : -static_cast<int>(axis.log2); };
    int sum = lost(from.bits, to.bits, 100, 1);
    sum += lost(chroma(from, from.across), chroma(to, to.across), 80, 3);
    sum += lost(chroma(from, from.down), chroma(to, to.down), 80, 3);
    sum += lost(from.has_alpha, to.has_alpha, 300, 2);
    return sum + (from.family != to.family ? 20 : 0);
}

/// The pixel formats that an encoder takes and a frame_grader writes.
std::vector<frame_form> written_forms(const AVCodec& encoder, const frame_form& source)
{
    std::vector<frame_form> forms;
    const auto add = [&](AVPixelFormat pixels)
    {
        if (const auto form = form_of(pixels, {}, 0, 0); form && can_be_written(*form))
            forms.push_back(*form);
    };
    if (encoder.pix_fmts == nullptr)
        add(source.pixels);
    else
        for (const AVPixelFormat* pixels = encoder.pix_fmts; *pixels != AV_PIX_FMT_NONE; ++pixels)
            add(*pixels);
    return forms;
}

std::string names_of(std::span<const frame_form> forms)
{
    std::string text;
    for (const frame_form& form : forms)
        text.append(text.empty() ? "" : ", ").append(av_get_pix_fmt_name(form.pixels));
    return text;
}

int bits_of(depth d)
{
    constexpr std::array bits{8, 10, 12, 16, 0, 32};
    return bits[static_cast<std::size_t>(d)];
}

} // namespace

result<clip_codec> choose_codec(const AVCodecParameters& source, const frame_form& form, const clip_request& request)
{
    const codec_row* row = request.codec.empty() ? find_row(source.codec_id) : find_row(request.codec);
    clip_codec made;
    if (row != nullptr)
    {
        made.name = row->name;
        made.encoder = avcodec_find_encoder_by_name(row->encoder);
        if (made.encoder == nullptr)
            return unsupported("this build of libav does not write " + made.name, "ask for another with --codec");
        add_options(row->options, made);
        add_profile(*row, source, form, made);
        if (const auto set = set_quality(*row, request, made); !set)
            return set.error();
    }
    else if (!request.codec.empty())
        return unsupported("no codec " + request.codec + " is written", "--codec takes " + all_names());
    else
    {
        made.name = avcodec_get_name(source.codec_id);
        made.encoder = lossless_encoder(source.codec_id);
        if (made.encoder == nullptr)
            return unsupported("its codec, " + made.name + ", cannot be written",
                               "ask for another, as in --codec h264 or prores");
        if (request.quality)
            return unsupported(made.name + " has no quality to choose", "leave --quality out");
    }
    return made;
}

result<AVPixelFormat> choose_pixels(const clip_codec& codec, const frame_form& form, const clip_request& request)
{
    std::vector<frame_form> forms = written_forms(*codec.encoder, form);
    const std::string all = names_of(forms);
    if (!request.pixel_format.empty() && codec.encoder->pix_fmts == nullptr)
    {
        const auto asked = form_of(av_get_pix_fmt(request.pixel_format.c_str()), {}, 0, 0);
        if (!asked || !can_be_written(*asked))
            return unsupported(request.pixel_format + " is no pixel format that is written");
        forms = {*asked};
    }
    if (!request.pixel_format.empty())
        std::erase_if(forms,
                      [&](const frame_form& f) { return av_get_pix_fmt_name(f.pixels) != request.pixel_format; });
    if (request.depth)
        std::erase_if(forms, [&](const frame_form& f) { return f.bits != bits_of(*request.depth); });
    if (forms.empty())
        return unsupported(codec.name + " is not written as " +
                               (request.pixel_format.empty()
                                    ? "samples of depth " + std::string(name_of(request.depth.value_or(depth::u8)))
                                    : "pixel format " + request.pixel_format),
                           "it takes " + all);
    // The source's own comes first among equals.
    const auto own =
        std::find_if(forms.begin(), forms.end(), [&](const frame_form& f) { return f.pixels == form.pixels; });
    if (own != forms.end())
        std::rotate(forms.begin(), own, own + 1);
    return std::min_element(forms.begin(), forms.end(),
                            [&](const frame_form& a, const frame_form& b) { return loss(form, a) < loss(form, b); })
        ->pixels;
}

std::string lost_samples(const frame_form& from, const frame_form& to)
{
    std::vector<std::string> parts;
    if (from.has_alpha && !to.has_alpha)
        parts.emplace_back("alpha");
    if (from.bits > to.bits)
        parts.push_back("more than " + std::to_string(to.bits) + " bits");
    if (to.family == colour_family::gray && from.family != colour_family::gray)
        parts.emplace_back("colour");
    else if (from.family != colour_family::gray && (from.across.log2 < to.across.log2 || from.down.log2 < to.down.log2))
        parts.emplace_back("chroma of every pixel");
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : ", ") + part;
    return text;
}

} // namespace ov1::media
