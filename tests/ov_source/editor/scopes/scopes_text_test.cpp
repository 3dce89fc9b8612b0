#include "editor/scopes/scopes_text.h"

#include <gtest/gtest.h>
#include <utility>

namespace ov1
{
namespace
{

TEST(scopes_text, every_choice_is_read_as_it_was_written)
{
    for (int bits = 1; bits < 32; ++bits)
    {
        scope_choice choice;
        choice.shown = {.waveform = (bits & 1) != 0,
                        .parade = (bits & 2) != 0,
                        .vectorscope = (bits & 4) != 0,
                        .histogram = (bits & 8) != 0};
        choice.skin_line = (bits & 16) != 0;
        if (bits == 16) // the skin line alone is no choice
            continue;
        EXPECT_EQ(scope_choice_from_text(scope_choice_text(choice)), choice) << scope_choice_text(choice);
    }
    EXPECT_EQ(scope_choice_text({{.waveform = true, .vectorscope = true}, true}), "waveform vectorscope skin");
}

TEST(scopes_text, unknown_words_are_ignored_and_no_scope_gives_the_default)
{
    const std::pair<const char*, scope_choice> cases[] = {
        {"parade, histogram", {{.histogram = true}}},
        {"  histogram\twaveform zebra ", {{.waveform = true, .histogram = true}}},
        {"Parade", {}},
        {"skin", {}},
        {"", {}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(scope_choice_from_text(text), expected) << text;
}

} // namespace
} // namespace ov1
