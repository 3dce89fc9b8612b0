#include "media/clips/clip_reader.h"

#include "media/stills/input_kind.h"
#include "support/media_files.h"

namespace ov1::media
{
namespace
{

/// Clips made by ffmpeg, of frames that differ in brightness: frame n of the first 30 has luma 16 + 7 n.
class clip_reader_test : public media_test
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
            "ffmpeg -nostdin -v error -y -f lavfi -i color=black:s=64x48:r=25:d=1.2,format=yuv420p,"
            "geq=lum='16+7*N':cb=128:cr=128 -color_range tv -colorspace bt709 " +
            options + ' ' + path;
        EXPECT_EQ(std::system(line.c_str()), 0) << line;
        return path;
    }
};

int number_of(const still_reader& frame)
{
    std::vector<argb_float> row(frame.info().width);
    frame.read_rows(frame.info().height / 2, 1, row.data());
    return static_cast<int>(std::lround(row[row.size() / 2].g * 219 / 7));
}

TEST_F(clip_reader_test, any_frame_comes_by_its_index_in_any_order)
{
    const struct
    {
        const char* name;
        const char* options;
    } rows[] = {
        {"few_keys.mp4", "-c:v libx264 -bf 3 -g 250 -crf 1"},
        {"late.mkv", "-c:v libx264 -bf 2 -g 8 -crf 1 -output_ts_offset 3"},
        {"alone.mov", "-c:v ffv1"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        clip_reader clip;
        const auto opened = clip.open(made(row.name, row.options), {});
        ASSERT_TRUE(opened) << reason_of(opened);
        EXPECT_EQ(clip.info().frames, 30u);
        for (const std::uint64_t index : {0, 1, 2, 29, 0, 17, 18, 5, 28, 12, 12, 99})
        {
            const auto frame = clip.read_frame(index);
            ASSERT_TRUE(frame) << index << ' ' << reason_of(frame);
            EXPECT_EQ(number_of(*frame), std::min<int>(static_cast<int>(index), 29)) << index;
        }
    }
}

TEST_F(clip_reader_test, frames_stand_upright_and_have_the_stills_form)
{
    made("flat.mp4", "-c:v libx264 -pix_fmt yuv422p10le");
    const std::string path = folder / "turned.mp4";
    const std::string turn =
        "ffmpeg -nostdin -v error -y -i " + folder / "flat.mp4" + " -c copy -metadata:s:v rotate=90 " + path;
    ASSERT_EQ(std::system(turn.c_str()), 0);
    EXPECT_EQ(input_kind_of(path), input_kind::clip);
    clip_reader clip;
    const auto opened = clip.open(path, {});
    ASSERT_TRUE(opened) << reason_of(opened);
    const auto frame = clip.read_frame(3);
    ASSERT_TRUE(frame) << reason_of(frame);
    EXPECT_EQ(frame->info().width, 48u);
    EXPECT_EQ(frame->info().height, 64u);
    EXPECT_EQ(frame->info().depth, depth::u10);
    EXPECT_FALSE(clip.open(save("text.mov", {'n', 'o'}), {}));
    EXPECT_EQ(clip.info().frames, 30u) << "what was open stays open";
}

} // namespace
} // namespace ov1::media
