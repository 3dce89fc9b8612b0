#include "media/clips/clip_reader.h"

#include "media/base/failures.h"
#include "media/clips/clip_form.h"
#include "media/clips/clip_source.h"
#include "media/samples/frame_reader.h"

#include <cmath>
#include <utility>

namespace ov1::media
{

struct clip_reader::state
{
    clip_source source;
    clip_request request;
    std::uint64_t next = 0; ///< index of the frame that comes next
    std::int64_t start = 0; ///< time of the first frame
    frame_ptr ahead;        ///< decoded, but not yet returned
    std::vector<clip_damage> dropped;

    /// The next frame in the file.
    frame_ptr take(std::vector<clip_damage>& damages)
    {
        if (ahead != nullptr)
            return std::move(ahead);
        clip_item item;
        while (source.next(item))
        {
            if (item.damage)
                damages.push_back(*item.damage);
            if (item.frame != nullptr)
                return std::move(item.frame);
        }
        return nullptr;
    }

    result<frame_form> form_of(const AVFrame& frame) const
    {
        return clip_form(frame, clip_tags(frame, *source.get_picture().codecpar, request));
    }
};

namespace
{

constexpr std::uint64_t frames_worth_reading = 48; ///< instead of seeking to a later one

still_info describe(const AVFrame& frame, const clip_info& clip)
{
    const AVPixFmtDescriptor& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const int bits = format.comp[0].depth;
    still_info info;
    info.width = static_cast<std::size_t>(frame.width);
    info.height = static_cast<std::size_t>(frame.height);
    info.depth = (format.flags & AV_PIX_FMT_FLAG_FLOAT) != 0 ? depth::full_float
                 : bits <= 8                                 ? depth::u8
                 : bits <= 10                                ? depth::u10
                 : bits <= 12                                ? depth::u12
                                                             : depth::u16;
    info.gray = format.nb_components < 3;
    info.alpha = (format.flags & AV_PIX_FMT_FLAG_ALPHA) != 0 ? alpha_kind::straight : alpha_kind::none;
    info.transfer = frame.color_trc == AVCOL_TRC_SMPTE2084      ? transfer::pq
                    : frame.color_trc == AVCOL_TRC_ARIB_STD_B67 ? transfer::hlg
                                                                : transfer::display;
    info.format_name = clip.codec;
    info.orientation = clip.turned_by == 90 ? 6 : clip.turned_by == 180 ? 3 : clip.turned_by == 270 ? 8 : 1;
    if (turn_of(info.orientation).swap_axes)
        std::swap(info.width, info.height);
    return info;
}

} // namespace

clip_reader::clip_reader() = default;
clip_reader::~clip_reader() = default;
clip_reader::clip_reader(clip_reader&&) noexcept = default;
clip_reader& clip_reader::operator=(clip_reader&&) noexcept = default;

result<> clip_reader::open(const std::string& path, const clip_request& request)
{
    auto made = std::make_unique<state>();
    made->request = request;
    if (const auto read = made->source.open(path, request.threads); !read)
        return read.error();
    const AVFrame& first = made->source.get_first_frame();
    if (const auto form = made->form_of(first); !form)
        return form.error();
    made->start = first.pts;
    opened = std::move(made);
    return {};
}

const clip_info& clip_reader::info() const { return opened->source.get_info(); }

bool clip_reader::read_next(still_reader& picture, std::vector<clip_damage>& damages)
{
    while (frame_ptr frame = opened->take(damages))
    {
        ++opened->next;
        const auto form = opened->form_of(*frame);
        if (!form) // another pixel format within the clip
        {
            damages.push_back({static_cast<double>(frame->pts) * av_q2d(opened->source.get_picture().time_base),
                               form.error().reason});
            continue;
        }
        still_info known = describe(*frame, info());
        picture.take(std::make_unique<frame_reader>(std::move(frame), *form), std::move(known));
        return true;
    }
    return false;
}

result<still_reader> clip_reader::read_frame(std::uint64_t index)
{
    const AVStream& stream = opened->source.get_picture();
    // Times within half a step count as the same frame: rates such as 29.97 are not exact in most time bases.
    const double rate = info().frames_per_second > 0 ? info().frames_per_second : 25;
    // Ticks of the stream's time base for one frame.
    const double step = 1 / rate / av_q2d(stream.time_base);
    const std::int64_t wanted = opened->start + std::llround(static_cast<double>(index) * step);
    // Seeking decodes again from the key frame before: a short way forward is cheaper by reading on.
    if (index < opened->next || index > opened->next + frames_worth_reading)
    {
        opened->ahead.reset();
        if (!opened->source.seek(wanted))
            return unreadable("no frame could be found there");
    }
    frame_ptr shown;
    opened->dropped.clear();
    for (;;)
    {
        frame_ptr frame = opened->take(opened->dropped);
        if (frame == nullptr)
            break;
        const bool is_later = static_cast<double>(frame->pts) > static_cast<double>(wanted) + step / 2;
        if (is_later && shown != nullptr)
        {
            opened->ahead = std::move(frame);
            break;
        }
        shown = std::move(frame);
        if (is_later || static_cast<double>(shown->pts) > static_cast<double>(wanted) - step / 2)
            break;
    }
    if (shown == nullptr)
        return unreadable("no frame could be decoded there");
    // read_next takes the frame that is shown; what was read beyond it comes after.
    frame_ptr kept = std::exchange(opened->ahead, std::move(shown));
    std::vector<clip_damage> ignored;
    still_reader picture;
    const bool is_given = read_next(picture, ignored);
    opened->ahead = std::move(kept);
    opened->next = index + 1;
    if (!is_given)
        return unreadable("no frame could be decoded there");
    return picture;
}

} // namespace ov1::media
