#include "framework/editor_session.h"

#include "framework/ccomponent_v1.h"
#include "framework/chost_v1.h"
#include "framework/parameters/cparameter_continuous_v1.h"
#include "framework/window_factory.h"
#include "support/fake_window.h"
#include "support/scripted_view.h"

#include <gtest/gtest.h>

#include <vector>

namespace ov1
{

namespace
{

/// Adds its one parameter to red.
class brightening : public ccomponent_v1
{
public:
    std::shared_ptr<iview_v1> create_view() override
    {
        set_view(next_view);
        return next_view;
    }
    void init_component() override
    {
        amount = std::make_shared<cparameter_continuous_v1>(weak_from_this(), "Amount", 0.f, 1.f, 0.f);
        register_parameter(amount);
    }
    void notify(event e) override
    {
        if (e.type == event_kind::preview_rendered)
            dynamic_cast<preview_sink&>(*get_view()).set_preview_image(*e.destination.lock());
    }
    void render_pixel(std::size_t, std::size_t, const argb_float& in, argb_float& out) override
    {
        out = in;
        out.r += amount->get_value();
    }

    std::shared_ptr<iview_v1> next_view;
    std::shared_ptr<cparameter_continuous_v1> amount;
};

std::shared_ptr<image> make_image(std::uint32_t width)
{
    return std::make_shared<image>(width, 2, image::pixel_type::argb_f32, image::origin::top_left);
}

class editor_session_fixture : public testing::Test
{
protected:
    editor_session_fixture()
    {
        component->initialize(std::make_shared<chost_v1>(component));
        component->next_view = view;
        install_window_maker(
            [this](const std::string& icon, const rect&, const std::string& title, void*)
            {
                icon_and_title = icon + "|" + title;
                return next_window;
            });
    }
    ~editor_session_fixture() override { install_window_maker({}); }

    std::shared_ptr<brightening> component = std::make_shared<brightening>();
    std::shared_ptr<scripted_view> view = std::make_shared<scripted_view>();
    std::shared_ptr<fake_window> next_window = std::make_shared<fake_window>();
    std::string icon_and_title;
};

TEST_F(editor_session_fixture, the_preview_is_rendered_once_and_again_after_each_change)
{
    editor_session session(component);
    session.set_picture(make_image(3), make_image(3));
    view->script = {[] {}, [this] { component->amount->set_value(0.5f, false); }, [] {}, [] {}};
    ASSERT_TRUE(session.run({}));
    EXPECT_EQ(view->graded, (std::vector<float>{0.f, 0.5f}));
    EXPECT_EQ(view->source_widths, std::vector<std::uint32_t>{3});
    EXPECT_EQ(icon_and_title, "ov_icon|Orvane - Veridial");
    EXPECT_FALSE(next_window->open);
    EXPECT_EQ(next_window->modal_changes, 2);
}

TEST_F(editor_session_fixture, another_frame_is_shown_and_graded_without_a_parameter_change)
{
    editor_session session(component);
    session.set_picture(make_image(3), make_image(3));
    editor_session_options options;
    options.frame_count = 9;
    options.frame_chosen = [&](int frame) { session.set_picture(make_image(10 + frame), make_image(10 + frame)); };
    view->script = {[] {}, [this] { view->choose(4); }, [] {}};
    ASSERT_TRUE(session.run(options));
    EXPECT_EQ(view->frames, 9);
    EXPECT_EQ(view->source_widths, (std::vector<std::uint32_t>{3, 14}));
    EXPECT_EQ(view->graded.size(), 2u);
}

TEST_F(editor_session_fixture, without_view_or_window_nothing_opens)
{
    next_window = nullptr;
    EXPECT_FALSE(editor_session(component).run({}));
    component->next_view = nullptr;
    EXPECT_FALSE(editor_session(component).run({}));
}

TEST_F(editor_session_fixture, images_that_differ_in_size_are_not_rendered)
{
    editor_session session(component);
    session.set_picture(make_image(3), make_image(4));
    view->script = {[] {}};
    ASSERT_TRUE(session.run({}));
    EXPECT_TRUE(view->graded.empty());
}

} // namespace

} // namespace ov1
