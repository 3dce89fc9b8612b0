#include "media/clips/clip_tags.h"

extern "C"
{
#include <libavutil/mem.h>
}

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace ov1::media
{

namespace
{

/// What containers write about themselves, in lower case; wrong or doubled in another file.
constexpr std::array<std::string_view, 10> container_tags{
    "major_brand", "minor_version", "compatible_brands", "encoder",        "handler_name", "vendor_id",
    "duration",    "bps",           "number_of_frames",  "number_of_bytes"};

/// libav's names of what QuickTime's list of user data can store.
constexpr std::array<std::string_view, 24> classic_mov_tags{
    "title",     "artist",   "album_artist", "composer",    "album",    "date",          "comment",    "genre",
    "copyright", "grouping", "lyrics",       "description", "synopsis", "show",          "episode_id", "network",
    "keywords",  "track",    "disc",         "compilation", "location", "creation_time", "timecode",   "encoder"};

std::string lower_case(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return lower;
}

/// Matroska appends a language to its own tags: "BPS-eng".
bool is_container_tag(std::string_view name)
{
    const std::string lower = lower_case(name);
    const std::string_view plain = std::string_view(lower).substr(0, lower.find('-'));
    return plain.starts_with("_statistics_") ||
           std::find(container_tags.begin(), container_tags.end(), plain) != container_tags.end();
}

} // namespace

void copy_tags(const AVDictionary* from, AVDictionary** to)
{
    const AVDictionaryEntry* tag = nullptr;
    while ((tag = av_dict_get(from, "", tag, AV_DICT_IGNORE_SUFFIX)) != nullptr)
        if (!is_container_tag(tag->key))
            av_dict_set(to, tag->key, tag->value, 0);
}

void copy_chapters(const AVFormatContext& from, AVFormatContext& to)
{
    if (from.nb_chapters == 0)
        return;
    to.chapters = static_cast<AVChapter**>(av_calloc(from.nb_chapters, sizeof(AVChapter*)));
    for (unsigned int i = 0; to.chapters != nullptr && i < from.nb_chapters; ++i)
    {
        auto* chapter = static_cast<AVChapter*>(av_mallocz(sizeof(AVChapter)));
        if (chapter == nullptr)
            return;
        const AVChapter& source = *from.chapters[i];
        chapter->id = source.id;
        chapter->time_base = source.time_base;
        chapter->start = source.start;
        chapter->end = source.end;
        av_dict_copy(&chapter->metadata, source.metadata, 0);
        // Counted one by one, so that after a failure the muxer frees exactly those that exist.
        to.chapters[to.nb_chapters++] = chapter;
    }
}

bool is_classic_mov_tag(const char* name)
{
    return std::find(classic_mov_tags.begin(), classic_mov_tags.end(), lower_case(name)) != classic_mov_tags.end();
}

} // namespace ov1::media
