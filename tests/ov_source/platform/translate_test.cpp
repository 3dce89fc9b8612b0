#include "platform/iutils.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(translate, selects_one_language_and_keeps_the_common_text)
{
    const struct
    {
        const char *name, *literal, *english, *german;
    } rows[] = {
        {"one piece each", "{en:Save}{de:Sichern}", "Save", "Sichern"},
        {"common text before, between, after", "<{en:a}|{de:b}>", "<a|>", "<|b>"},
        {"plain text", "Hue", "Hue", "Hue"},
        {"nothing", "", "", ""},
        {"several pieces of one language", "{en:a}{de:b} {en:c}{de:d}", "a c", "b d"},
        {"placeholder", "{en:{0} of {1}}{de:{0} von {1}}", "{0} of {1}", "{0} von {1}"},
        {"nested deeper", "{en:{{x}}}{de:y}", "{{x}}", "y"},
        {"a brace without a colon", "{0} {abc} {en:x}", "{0} {abc} x", "{0} {abc} "},
        {"no fallback", "{fr:Bleu}", "", ""},
        {"one language only", "{de:nur}", "", "nur"},
        {"an empty piece", "a{en:}b", "ab", "ab"},
        {"a piece in capitals is another language", "{EN:x}{en:y}", "y", ""},
        {"unclosed: the rest is plain", "{en:a} {de:b", "a {de:b", " {de:b"},
        {"unclosed by nesting", "x{en:{0}", "x{en:{0}", "x{en:{0}"},
        {"a plain brace before a piece", "{ {en:a}{de:b}", "{ a", "{ b"},
        {"two braces in a row", "{{en:a}{de:b}", "{a", "{b"},
        {"the fourth character is the last", "{en:", "{en:", "{en:"},
        {"the text ends before it", "{en", "{en", "{en"},
        {"a closing brace alone", "} {en:a}", "} a", "} "},
        {"a brace within the code", "{a}:x} {en:a}", ":x} a", ":x} "},
        {"umlauts", "{en:Grey}{de:Für Größe}", "Grey", "Für Größe"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(iutils::translate(language_id::english, row.literal), row.english);
        EXPECT_EQ(iutils::translate(language_id::german, row.literal), row.german);
        EXPECT_EQ(iutils::translate(static_cast<language_id>(7), row.literal), row.english)
            << "any language other than German is shown in English";
    }
}

} // namespace
} // namespace ov1
