#include "framework/chost_v1.h"

#include "framework/editor_factory.h"
#include "support/test_component.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

struct listening_component : ccomponent_v1
{
    void notify(event e) override { heard.push_back(e.type); }

    std::vector<event_kind> heard;
};

TEST(chost_v1, sets_and_clears_its_flags_by_event_kind)
{
    // the kind, then the dirty and the legacy flag: 1 set, 0 cleared, -1 unchanged
    const std::tuple<int, int, int> rows[] = {{0, -1, 0},  {1, -1, -1}, {2, 1, -1},  {3, 1, -1},
                                              {4, -1, -1}, {5, 0, -1},  {6, -1, -1}, {7, -1, -1},
                                              {8, 1, -1},  {9, -1, -1}, {10, -1, 1}, {11, -1, -1}};
    for (const bool before : {false, true})
        for (const auto& [kind, dirty, legacy] : rows)
        {
            SCOPED_TRACE(kind);
            chost_v1 host({});
            host.notify({before ? event_kind::edited : event_kind::terminated});
            host.notify({before ? event_kind::unknown_parameter : event_kind::terminated});
            host.notify({static_cast<event_kind>(kind)});
            EXPECT_EQ(host.component_is_dirty(), dirty < 0 ? before : dirty == 1);
            EXPECT_EQ(host.has_legacy_parameters(), legacy < 0 ? before : legacy == 1);
        }
}

TEST(chost_v1, forwards_events_while_the_component_exists)
{
    auto component = std::make_shared<listening_component>();
    chost_v1 host(component);
    host.notify({event_kind::render_begins});
    EXPECT_TRUE(host.schedule_render());
    EXPECT_EQ(component->heard, (std::vector{event_kind::render_begins, event_kind::render_requested}));
    component.reset();
    host.notify({event_kind::unknown_parameter});
    EXPECT_TRUE(host.has_legacy_parameters());
}

TEST(editor_factory, creates_editors_while_installed)
{
    const auto view = std::make_shared<test_view>();
    install_editor_factory([&](auto) { return view; });
    EXPECT_EQ(create_editor({}), view);
    install_editor_factory({});
    EXPECT_EQ(create_editor({}), nullptr) << "a program without windows";
}

} // namespace
} // namespace ov1
