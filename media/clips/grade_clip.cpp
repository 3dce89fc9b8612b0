#include "media/clips/grade_clip.h"

#include "media/base/failures.h"
#include "media/clips/bounded_queue.h"
#include "media/clips/clip_source.h"
#include "media/clips/clip_target.h"

extern "C"
{
#include <libavutil/imgutils.h>
}

#include <thread>

namespace ov1::media
{

namespace
{

constexpr std::size_t frame_weight = 64; ///< of packets of sound and the like
constexpr std::size_t frames_ahead = 2;  ///< between two threads

using item_queue = bounded_queue<clip_item>;

/// Frames fill the queue, while many small packets may pass between two of them.
std::size_t weight_of(const clip_item& item) { return item.frame != nullptr ? frame_weight : 1; }

/// Frames whose memory is reused.
class frame_pool
{
public:
    frame_pool(AVPixelFormat pixels, int width, int height)
        : pixels(pixels)
        , width(width)
        , height(height)
        , bytes(av_image_get_buffer_size(pixels, width, height, alignment))
        , pool(bytes > 0 ? av_buffer_pool_init(static_cast<std::size_t>(bytes) + overhang, av_buffer_allocz) : nullptr)
    {
    }
    ~frame_pool() { av_buffer_pool_uninit(&pool); }
    frame_pool(const frame_pool&) = delete;
    frame_pool& operator=(const frame_pool&) = delete;

    /// Null without memory.
    frame_ptr get()
    {
        frame_ptr frame(av_frame_alloc());
        if (frame == nullptr || pool == nullptr || (frame->buf[0] = av_buffer_pool_get(pool)) == nullptr)
            return nullptr;
        frame->format = pixels;
        frame->width = width;
        frame->height = height;
        av_image_fill_arrays(frame->data, frame->linesize, frame->buf[0]->data, pixels, width, height, alignment);
        return frame;
    }

private:
    static constexpr int alignment = 64;
    static constexpr std::size_t overhang = 64; ///< that encoders may read beyond the end

    AVPixelFormat pixels;
    int width;
    int height;
    int bytes;
    AVBufferPool* pool;
};

/// Each thread owns the item that it holds; items change threads only through the queues. The thread that ends first
/// abandons or closes its queues, so that no other waits for it.
class clip_pipeline
{
public:
    clip_pipeline(clip_source& source, clip_target& target, const clip_hooks& hooks)
        : source(source)
        , target(target)
        , hooks(hooks)
        , grader(target.get_source_form(), target.get_form())
        , pool(target.get_form().pixels, source.get_first_frame().width, source.get_first_frame().height)
        , passes(!hooks.grade && is_alike(target))
    {
    }

    result<> run()
    {
        std::thread decoding([this] { decode(); });
        std::thread grading([this] { grade(); });
        result<> written = write_all();
        if (written)
            written = target.finish();
        // After a failure the other threads may be waiting to push: this ends them.
        decoded.abandon();
        graded.abandon();
        decoding.join();
        grading.join();
        return written ? grading_result : written;
    }

private:
    /// Whether samples mean the same in source and target, so that ungraded frames can pass without conversion.
    static bool is_alike(const clip_target& target)
    {
        const frame_form &from = target.get_source_form(), &to = target.get_form();
        const auto same_range = [&](int i)
        { return from.components[i].range.codes_per_unit == to.components[i].range.codes_per_unit; };
        return from.pixels == to.pixels && same_range(0) && same_range(1);
    }

    void decode()
    {
        clip_item item;
        while (source.next(item))
        {
            const std::size_t weight = weight_of(item);
            if (!decoded.push(std::move(item), weight))
                break;
            item = {};
        }
        decoded.close();
    }

    void grade()
    {
        clip_item item;
        while (decoded.pop(item))
        {
            if (item.frame != nullptr && !grade_frame(item.frame))
                break;
            const std::size_t weight = weight_of(item);
            if (!graded.push(std::move(item), weight))
                break;
            item = {};
        }
        decoded.abandon(); // after a failure: the decoder stops as well
        graded.close();    // frames that are already graded are still written
    }

    /// Replaces the frame by a graded one; false after setting grading_result.
    bool grade_frame(frame_ptr& frame)
    {
        const AVFrame& first = source.get_first_frame();
        if (frame->width != first.width || frame->height != first.height || frame->format != first.format)
        {
            grading_result = unsupported("the picture changes its size or pixel format within the clip",
                                         "cut it into clips of one size");
            return false;
        }
        if (passes)
            return true;
        frame_ptr made = pool.get();
        if (made == nullptr || av_frame_copy_props(made.get(), frame.get()) < 0)
        {
            grading_result = cannot_write("not enough memory");
            return false;
        }
        grader.grade(*frame, *made, hooks.grade, hooks.run);
        frame = std::move(made);
        return true;
    }

    result<> write_all()
    {
        std::uint64_t frames = 0;
        clip_item item;
        while (graded.pop(item))
        {
            if (item.damage)
                hooks.on_damage(*item.damage);
            if (item.packet != nullptr)
                if (const auto written = target.write_packet(std::move(item.packet)); !written)
                    return written;
            if (item.frame == nullptr)
                continue;
            if (const auto written = target.write_frame(*item.frame); !written)
                return written;
            item.frame.reset();
            hooks.on_frame(++frames);
        }
        return {};
    }

    clip_source& source;
    clip_target& target;
    const clip_hooks& hooks;
    frame_grader grader;
    frame_pool pool;
    bool passes;
    item_queue decoded{frames_ahead * frame_weight};
    item_queue graded{frames_ahead * frame_weight};
    result<> grading_result; ///< written by the grading thread, read after it has ended
};

} // namespace

result<> grade_clip(clip_source& source, clip_target& target, int descriptor, const clip_hooks& hooks)
{
    if (const auto begun = target.begin(descriptor); !begun)
        return begun;
    return clip_pipeline(source, target, hooks).run();
}

} // namespace ov1::media
