#include "media/clips/clip_tags.h"

#include "media/base/libav.h"

#include <gtest/gtest.h>
#include <memory>

namespace ov1::media
{
namespace
{

struct format_deleter
{
    void operator()(AVFormatContext* format) const { avformat_free_context(format); }
};
using format_ptr = std::unique_ptr<AVFormatContext, format_deleter>;

TEST(clip_tags, what_the_container_writes_of_itself_is_left_out)
{
    const std::pair<const char*, bool> rows[] = {
        {"title", true},
        {"com.apple.quicktime.make", true},
        {"DURATION", false}, // Matroska counts anew
        {"BPS-eng", false},
        {"NUMBER_OF_FRAMES", false},
        {"_STATISTICS_WRITING_APP-eng", false},
        {"major_brand", false},
        {"encoder", false},
        {"encoder_settings", true},
        {"handler_name", false},
    };
    dictionary from, to;
    for (const auto& [name, is_kept] : rows)
        from.set(name, "value of " + std::string(name));
    copy_tags(from.entries, &to.entries);
    for (const auto& [name, is_kept] : rows)
    {
        const AVDictionaryEntry* tag = av_dict_get(to.entries, name, nullptr, 0);
        ASSERT_EQ(tag != nullptr, is_kept) << name;
        EXPECT_TRUE(!is_kept || std::string(tag->value) == "value of " + std::string(name));
    }
}

TEST(clip_tags, chapters_keep_their_times_and_titles)
{
    const format_ptr from(avformat_alloc_context()), to(avformat_alloc_context());
    copy_chapters(*from, *to);
    EXPECT_EQ(to->nb_chapters, 0u);
    from->nb_chapters = 2;
    from->chapters = static_cast<AVChapter**>(av_calloc(2, sizeof(AVChapter*)));
    for (int i = 0; i < 2; ++i)
    {
        auto* chapter = from->chapters[i] = static_cast<AVChapter*>(av_mallocz(sizeof(AVChapter)));
        *chapter = {.id = 7 + i, .time_base = {1, 1000 + i}, .start = 10 * i, .end = 10 * i + 5, .metadata = nullptr};
        av_dict_set(&chapter->metadata, "title", i == 0 ? "First" : "Second", 0);
    }
    copy_chapters(*from, *to);
    ASSERT_EQ(to->nb_chapters, 2u);
    const AVChapter& second = *to->chapters[1];
    EXPECT_EQ(second.id, 8);
    EXPECT_EQ(second.time_base.den, 1001);
    EXPECT_EQ(second.start, 10);
    EXPECT_EQ(second.end, 15);
    EXPECT_STREQ(av_dict_get(second.metadata, "title", nullptr, 0)->value, "Second");
}

TEST(clip_tags, old_lists_of_mov_hold_names_in_any_case)
{
    EXPECT_TRUE(is_classic_mov_tag("Title"));
    EXPECT_TRUE(is_classic_mov_tag("creation_time"));
    EXPECT_FALSE(is_classic_mov_tag("com.apple.quicktime.make"));
    EXPECT_FALSE(is_classic_mov_tag(""));
}

} // namespace
} // namespace ov1::media
