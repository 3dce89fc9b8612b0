#include "media/stills/output_format.h"

#include "media/base/failures.h"

extern "C"
{
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace ov1::media
{

namespace
{

struct written_format
{
    still_format format;
    std::string_view name;
    AVCodecID codec;
    bool icc;
};

constexpr std::array<written_format, 5> written_formats{{
    {still_format::png, "PNG", AV_CODEC_ID_PNG, true},
    {still_format::jpeg, "JPEG", AV_CODEC_ID_MJPEG, true},
    {still_format::tiff, "TIFF", AV_CODEC_ID_TIFF, true},
    {still_format::exr, "EXR", AV_CODEC_ID_EXR, false},
    {still_format::dpx, "DPX", AV_CODEC_ID_DPX, false},
}};

struct extension
{
    std::string_view text;
    still_format format;
};

/// In lower case.
constexpr std::array<extension, 7> extensions{{
    {"png", still_format::png},
    {"jpg", still_format::jpeg},
    {"jpeg", still_format::jpeg},
    {"tif", still_format::tiff},
    {"tiff", still_format::tiff},
    {"exr", still_format::exr},
    {"dpx", still_format::dpx},
}};

// The first row that fits is the usual one. Rows of one format stand together: layouts_of returns them as one span.
constexpr std::array<output_layout, 21> layouts{{
    {still_format::png, depth::u8, false, AV_PIX_FMT_RGB24},
    {still_format::png, depth::u8, true, AV_PIX_FMT_RGBA},
    {still_format::png, depth::u16, false, AV_PIX_FMT_RGB48BE},
    {still_format::png, depth::u16, true, AV_PIX_FMT_RGBA64BE},
    {still_format::jpeg, depth::u8, false, AV_PIX_FMT_YUV444P},
    {still_format::jpeg, depth::u8, false, AV_PIX_FMT_YUV422P},
    {still_format::jpeg, depth::u8, false, AV_PIX_FMT_YUV420P},
    {still_format::tiff, depth::u8, false, AV_PIX_FMT_RGB24},
    {still_format::tiff, depth::u8, true, AV_PIX_FMT_RGBA},
    {still_format::tiff, depth::u16, false, AV_PIX_FMT_RGB48LE},
    {still_format::tiff, depth::u16, true, AV_PIX_FMT_RGBA64LE},
    {still_format::dpx, depth::u8, false, AV_PIX_FMT_RGB24},
    {still_format::dpx, depth::u8, true, AV_PIX_FMT_RGBA},
    {still_format::dpx, depth::u10, false, AV_PIX_FMT_GBRP10BE},
    {still_format::dpx, depth::u12, false, AV_PIX_FMT_GBRP12BE},
    {still_format::dpx, depth::u16, false, AV_PIX_FMT_RGB48BE},
    {still_format::dpx, depth::u16, true, AV_PIX_FMT_RGBA64BE},
    // Floats for both: the encoder makes them half.
    {still_format::exr, depth::half, false, AV_PIX_FMT_GBRPF32},
    {still_format::exr, depth::half, true, AV_PIX_FMT_GBRAPF32},
    {still_format::exr, depth::full_float, false, AV_PIX_FMT_GBRPF32},
    {still_format::exr, depth::full_float, true, AV_PIX_FMT_GBRAPF32},
}};

std::span<const output_layout> layouts_of(still_format format)
{
    const auto is_it = [format](const output_layout& l) { return l.format == format; };
    const auto begin = std::find_if(layouts.begin(), layouts.end(), is_it);
    return {begin, std::find_if_not(begin, layouts.end(), is_it)};
}

const written_format& entry_of(still_format format)
{
    return *std::find_if(written_formats.begin(), written_formats.end(),
                         [format](const written_format& f) { return f.format == format; });
}

/// Depths in order of preference for a source's depth: itself, then those that lose nothing, the smallest first, then
/// those that lose least. Half floats have 11 significant bits, so they lose some of 12 and 16.
std::span<const depth> preference(depth source)
{
    using enum depth;
    static constexpr std::array<std::array<depth, 6>, 6> order{{
        {u8, u10, u12, u16, half, full_float},
        {u10, u12, u16, half, full_float, u8},
        {u12, u16, full_float, half, u10, u8},
        {u16, full_float, half, u12, u10, u8},
        {half, full_float, u16, u12, u10, u8},
        {full_float, half, u16, u12, u10, u8},
    }};
    return order[static_cast<std::size_t>(source)];
}

/// "8, 10, 12 or 16".
std::string list_of(const std::vector<std::string_view>& names)
{
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i)
        text.append(i == 0 ? "" : i + 1 == names.size() ? " or " : ", ").append(names[i]);
    return text;
}

/// A list of the layouts of a format that pass the filter, each name once.
template <typename filter, typename namer>
std::string held(still_format format, filter&& wanted, namer&& name)
{
    std::vector<std::string_view> names;
    for (const output_layout& l : layouts_of(format))
        if (wanted(l) && std::find(names.begin(), names.end(), name(l)) == names.end())
            names.push_back(name(l));
    return list_of(names);
}

std::string_view depth_name(const output_layout& l) { return name_of(l.depth); }

/// Why no layout fits: the first of depth, alpha and pixel format that the format cannot hold.
failure refusal_of(still_format format, const still_info& source, const layout_request& request, bool keep_alpha)
{
    const std::string name(name_of(format));
    const auto any = [](const output_layout&) { return true; };
    const auto at_depth = [&](const output_layout& l) { return l.depth == request.depth; };
    const auto with_alpha = [](const output_layout& l) { return l.has_alpha; };
    const auto all = layouts_of(format);
    if (request.depth && std::none_of(all.begin(), all.end(), at_depth))
        return unsupported(name + " holds no samples of depth " + std::string(name_of(*request.depth)),
                           "ask for " + held(format, any, depth_name));
    if (request.pixel_format.empty() && keep_alpha && source.alpha != alpha_kind::none)
        return unsupported(name + " holds no alpha at depth " + std::string(name_of(*request.depth)),
                           "ask for " + held(format, with_alpha, depth_name));
    const auto pixels_name = [](const output_layout& l) { return av_get_pix_fmt_name(l.pixels); };
    return unsupported(name + " is not written as pixel format " + std::string(request.pixel_format),
                       "ask for " + held(format, any, pixels_name));
}

} // namespace

result<still_format> format_of_path(std::string_view path)
{
    const std::size_t slash = path.rfind('/');
    const std::string_view leaf = slash == std::string_view::npos ? path : path.substr(slash + 1);
    const std::size_t dot = leaf.rfind('.');
    std::string text(dot == std::string_view::npos ? std::string_view() : leaf.substr(dot + 1));
    for (char& c : text)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    const auto found =
        std::find_if(extensions.begin(), extensions.end(), [&](const extension& e) { return e.text == text; });
    if (found != extensions.end())
        return found->format;
    return unsupported(text.empty() ? "the name has no extension" : "no still format is named ." + text,
                       "end it in .png, .jpg, .tif, .exr or .dpx");
}

std::string_view name_of(still_format format) { return entry_of(format).name; }
AVCodecID codec_of(still_format format) { return entry_of(format).codec; }
bool holds_icc(still_format format) { return entry_of(format).icc; }

result<output_layout> choose_layout(still_format format, const still_info& source, const layout_request& request)
{
    const auto all = layouts_of(format);
    // A format without alpha drops it, with a warning; one that has it must not lose it to another request.
    const bool format_has_alpha = std::any_of(all.begin(), all.end(), [](const auto& l) { return l.has_alpha; });
    const bool keep_alpha = source.alpha != alpha_kind::none && format_has_alpha;
    for (const depth candidate : preference(source.depth))
        for (const output_layout& l : all)
        {
            const bool depth_fits = l.depth == request.depth.value_or(candidate);
            const bool pixels_fit = request.pixel_format.empty()
                                        ? l.has_alpha == keep_alpha
                                        : request.pixel_format == av_get_pix_fmt_name(l.pixels);
            if (depth_fits && pixels_fit)
                return l;
        }
    return refusal_of(format, source, request, keep_alpha);
}

} // namespace ov1::media
