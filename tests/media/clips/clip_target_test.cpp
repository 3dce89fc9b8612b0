#include "media/clips/clip_target.h"

#include "media/clips/clip_reader.h"
#include "media/clips/grade_clip.h"
#include "support/media_files.h"

#include <fcntl.h>
#include <unistd.h>

namespace ov1::media
{
namespace
{

/// Clips of noise made by ffmpeg.
class clip_target_test : public media_test
{
protected:
    void SetUp() override
    {
        if (std::system("command -v ffmpeg >/dev/null") != 0)
            GTEST_SKIP() << "ffmpeg is not installed";
    }

    std::string made(const std::string& name, const std::string& options) const
    {
        const std::string path = folder / name;
        const std::string line =
            "ffmpeg -nostdin -v error -y -f lavfi -i "
            "nullsrc=s=50x38:r=25:d=0.2,geq=lum='random(1)*255':cb='random(2)*255':cr='random(3)*255' "
            "-f lavfi -i sine=d=0.2 " +
            options + ' ' + path;
        EXPECT_EQ(std::system(line.c_str()), 0) << line;
        return path;
    }

    static clip_hooks without_grade()
    {
        return {
            .grade = {}, .run = run_in_turn, .on_frame = [](std::uint64_t) {}, .on_damage = [](const clip_damage&) {}};
    }

    /// Converts a clip and returns the target's streams.
    std::vector<clip_stream> converted(const std::string& from, const std::string& to, const clip_request& request)
    {
        clip_source source;
        clip_target target;
        const auto opened = source.open(from, 1);
        EXPECT_TRUE(opened) << reason_of(opened);
        const auto created = target.create(source, to, request);
        EXPECT_TRUE(created) << reason_of(created);
        const int descriptor = open(to.c_str(), O_RDWR | O_CREAT | O_TRUNC, 0600);
        const auto graded = grade_clip(source, target, descriptor, without_grade());
        EXPECT_TRUE(graded) << reason_of(graded);
        close(descriptor);
        return target.get_streams();
    }
};

/// The largest difference of a channel between the first frames of two clips.
float largest_difference(const std::string& first, const clip_request& request, const std::string& second)
{
    clip_reader one, other;
    EXPECT_TRUE(one.open(first, request));
    EXPECT_TRUE(other.open(second, {}));
    const auto a = one.read_frame(0), b = other.read_frame(0);
    EXPECT_TRUE(a && b);
    const rows left = all_rows(*a), right = all_rows(*b);
    EXPECT_EQ(left.size(), right.size());
    float largest = 0;
    for (std::size_t i = 0; i < left.size(); ++i)
        for (const auto channel : {&argb_float::r, &argb_float::g, &argb_float::b})
            largest = std::max(largest, std::fabs(left[i].*channel - right[i].*channel));
    return largest;
}

TEST_F(clip_target_test, single_frames_have_the_colours_of_the_written_clip)
{
    const struct
    {
        const char* name;
        const char* options;
        clip_request request;
    } cases[] = {
        {"untagged", "-pix_fmt yuv420p", {}},
        {"709 full", "-pix_fmt yuv420p -colorspace bt709 -color_range pc", {}},
        {"2020", "-pix_fmt yuv422p10le -colorspace bt2020nc -color_range tv", {}},
        {"240M", "-pix_fmt yuv444p -colorspace smpte240m", {}},
        {"fcc", "-pix_fmt yuv420p -colorspace fcc", {}},
        {"top left", "-pix_fmt yuv420p -chroma_sample_location topleft", {}},
        {"centre", "-pix_fmt yuv420p -chroma_sample_location center", {}},
        {"overridden",
         "-pix_fmt yuv420p -colorspace bt709",
         {.range = range_choice::full, .matrix = matrix_choice::bt2020}},
        {"grey", "-pix_fmt gray", {}},
        {"limited rgb", "-pix_fmt gbrp -color_range tv", {}},
        {"large", "-vf scale=1200:64 -pix_fmt yuv420p", {}}, // beyond 1024 pixels: BT.709
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(row.name);
        const std::string from = made("from.mkv", std::string("-c:v ffv1 -an ") + row.options), to = folder / "to.mkv";
        clip_request request = row.request;
        request.codec = "ffv1";
        request.pixel_format = "gbrp16le";
        converted(from, to, request);
        constexpr float one_code = 1.0f / (219 * 256); // of the limited range
        EXPECT_LE(largest_difference(from, row.request, to), one_code);
    }
}

TEST_F(clip_target_test, every_stream_is_accounted_for)
{
    const std::string subtitles = folder.with_file("a.srt", "1\n00:00:00,000 --> 00:00:00,100\nHello\n");
    const std::string from = made("from.mkv", "-i " + subtitles + " -map 0 -map 1 -map 2 -c:v ffv1 -c:a flac -c:s srt");
    const struct
    {
        const char* to;
        clip_request request;
        std::vector<stream_fate> fates;
    } cases[] = {
        {"to.mkv", {}, {stream_fate::graded, stream_fate::copied, stream_fate::copied}},
        {"to.avi", {}, {stream_fate::graded, stream_fate::copied, stream_fate::left_out}},
        {"to.mov", {.codec = "prores"}, {stream_fate::graded, stream_fate::left_out, stream_fate::left_out}},
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(row.to);
        const auto streams = converted(from, folder / row.to, row.request);
        ASSERT_EQ(streams.size(), row.fates.size());
        for (std::size_t i = 0; i < streams.size(); ++i)
            EXPECT_EQ(streams[i].fate, row.fates[i]) << streams[i].name << ": " << streams[i].note;
    }
}

TEST_F(clip_target_test, refuses_before_it_touches_a_file)
{
    const std::string yuv = made("yuv.mkv", "-c:v ffv1 -an -pix_fmt yuv420p");
    const struct
    {
        const char* to;
        clip_request request;
        const char* says;
    } cases[] = {
        {"a.xyz", {}, "no clip is written under this name"},
        {"a.png", {}, "a clip is not written as one picture"},
        {"a.wav", {}, "no clip is written under this name"},
        {"a.mp4", {.codec = "prores"}, "mp4 cannot hold this kind of prores"},
        {"a.mkv", {.codec = "h265"}, "no codec h265 is written"},
        {"a.mkv", {.pixel_format = "yuv999"}, "ffv1 is not written as pixel format yuv999"},
    };
    clip_source source;
    ASSERT_TRUE(source.open(yuv, 1));
    for (const auto& row : cases)
    {
        SCOPED_TRACE(row.says);
        clip_target target;
        const auto created = target.create(source, folder / row.to, row.request);
        ASSERT_FALSE(created);
        EXPECT_EQ(created.error().kind, failure_kind::unsupported);
        EXPECT_EQ(created.error().reason, row.says);
        EXPECT_FALSE(std::filesystem::exists(folder / row.to));
    }
}

TEST_F(clip_target_test, an_unsupported_matrix_has_one_reason_everywhere)
{
    const std::string from = made("from.mkv", "-c:v ffv1 -an -pix_fmt yuv420p -colorspace bt2020c");
    clip_source source;
    clip_target target;
    clip_reader frames;
    ASSERT_TRUE(source.open(from, 1));
    const auto written = target.create(source, folder / "to.mkv", {});
    const auto read = frames.open(from, {});
    ASSERT_TRUE(!written && !read);
    EXPECT_EQ(written.error(), read.error());
    EXPECT_EQ(read.error().reason, "the colour matrix bt2020c is not supported");
    EXPECT_TRUE(frames.open(from, {.matrix = matrix_choice::bt2020}));
}

TEST_F(clip_target_test, a_full_disk_is_the_outputs_failure)
{
    clip_source source;
    clip_target target;
    ASSERT_TRUE(source.open(made("from.mkv", "-c:v ffv1 -an"), 1));
    ASSERT_TRUE(target.create(source, folder / "to.mkv", {}));
    const int descriptor = open("/dev/full", O_WRONLY);
    ASSERT_GE(descriptor, 0);
    const auto graded = grade_clip(source, target, descriptor, without_grade());
    close(descriptor);
    ASSERT_FALSE(graded);
    EXPECT_EQ(graded.error().kind, failure_kind::cannot_write);
    EXPECT_NE(graded.error().reason, "");
}

TEST_F(clip_target_test, damage_is_reported_and_the_rest_is_graded)
{
    const std::string path = made("from.mkv", "-c:v png -an");
    file_bytes bytes;
    {
        std::ifstream file(path, std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(file), {});
    }
    std::fill_n(bytes.begin() + std::ptrdiff_t(bytes.size() / 2), 64, std::uint8_t{0x55});
    clip_source source;
    clip_target target;
    ASSERT_TRUE(source.open(save("damaged.mkv", bytes), 1));
    ASSERT_TRUE(target.create(source, folder / "to.mkv", {}));
    std::uint64_t frames = 0, damages = 0;
    clip_hooks hooks = without_grade();
    hooks.on_frame = [&](std::uint64_t done) { frames = done; };
    hooks.on_damage = [&](const clip_damage& damage) { damages += !damage.reason.empty(); };
    const int descriptor = open((folder / "to.mkv").c_str(), O_RDWR | O_CREAT, 0600);
    EXPECT_TRUE(grade_clip(source, target, descriptor, hooks));
    close(descriptor);
    EXPECT_GE(damages, 1u);
    EXPECT_GE(frames, 4u);
}

} // namespace
} // namespace ov1::media
