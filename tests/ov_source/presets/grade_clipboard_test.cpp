#include "presets/grade_clipboard.h"

#include "platform/cutils_linux.h"
#include "platform/utils_guard.h"
#include "support/temp_folder.h"
#include "support/test_component.h"

#include <gtest/gtest.h>
#include <optional>

namespace ov1
{
namespace
{

struct grade_clipboard : testing::Test, stage
{
    temp_folder home;
    cutils_linux utils{"", "", {{}, home.path, {}, 0.0, language_id::english}};
    utils_guard in_place{utils};
};

TEST_F(grade_clipboard, a_copied_grade_is_pasted_elsewhere_as_one_undo_step)
{
    component->amount->set_value(12, false);
    component->tint->set_value({1, 0.25f, 0.5f, 0.75f}, false);
    ASSERT_TRUE(copy_grade(*component));
    const stage other;
    other.component->amount->set_value(80, false);
    const auto before = other.component->get_state();
    ASSERT_TRUE(paste_grade(*other.component));
    EXPECT_TRUE(other.component->get_state() == component->get_state());
    EXPECT_EQ(other.component->get_undo_range(), (undo_range{0, 1, 1}));
    other.component->undo();
    EXPECT_TRUE(other.component->get_state() == before);
}

TEST_F(grade_clipboard, a_paste_that_fails_gives_a_reason_and_is_no_step)
{
    const std::pair<std::optional<std::string>, const char*> rows[] = {
        {std::nullopt, "no such file"}, {"{\"parameters\":[]}", "\"parameter_count\" is missing"}};
    component->amount->set_value(80, false);
    for (const auto& [file, expected] : rows)
    {
        SCOPED_TRACE(expected);
        if (file)
            home.with_file("copied_grade.json", *file);
        const auto pasted = paste_grade(*component);
        ASSERT_FALSE(pasted);
        EXPECT_EQ(pasted.error().reason.find(expected), 0u) << pasted.error().reason;
        EXPECT_EQ(component->amount->get_value(), 80);
        EXPECT_EQ(component->get_undo_range(), (undo_range{0, 0, 0}));
    }
}

TEST_F(grade_clipboard, without_a_home_folder_neither_works)
{
    cutils_linux homeless("", "", {});
    const utils_guard no_home(homeless);
    for (const auto& outcome : {copy_grade(*component), paste_grade(*component)})
    {
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.error().reason, "there is no home folder");
    }
}

} // namespace
} // namespace ov1
