#include "editor_bench.h"

#include "editor/editor_guard.h"
#include "editor/scopes/scopes_panel.h"
#include "editor/veridial_ui.h"
#include "effect/reference/build_lut_reference.h"
#include "frames.h"
#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/image_render.h"
#include "framework/parameters/iparameter_v1.h"
#include "framework/row_renderer.h"
#include "interleaved.h"
#include "plain_code.h"
#include "table_bench.h"

#include "vstgui/lib/cbitmap.h"
#include "vstgui/lib/coffscreencontext.h"
#include "vstgui/lib/platform/iplatformbitmap.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>

namespace ov1::bench
{

namespace
{

using namespace VSTGUI;

// The preview is shown at 100 percent; the rest of the window is the column of controls and the strip below.
constexpr std::uint32_t preview_width = 1600, preview_height = 900;
constexpr double column_width = 494, strip_height = 34, scopes_width = 260;

class editor_bench
{
public:
    /// With all four scopes beside the preview, or without any.
    explicit editor_bench(bool with_scopes)
        : shown_width(preview_width + (with_scopes ? scopes_width : 0))
    {
        component->initialize(std::make_shared<chost_v1>(component));
        const grade_settings settings = everything_active();
        // From 1 on: parameter 0 is the bypass.
        for (std::size_t i = 1; i < parameter_count; ++i)
            set_value(static_cast<int>(i), settings.settings[i].value);
        std::memcpy(source->pixels(), frame_pixels.pixels.data(), frame_pixels.pixels.size() * sizeof(argb_float));
        const CPoint window(shown_width + column_width, preview_height + strip_height);
        view->build_frame(window.x, window.y);
        view->getFrame()->attached(view->getFrame()); // as opening it in a window does
        view->set_preview_source(*source);
        view->get_scopes().set_choice({{true, true, true, true}, false});
        view->show_scopes(with_scopes);
        drawn = COffscreenContext::create(window);
        plain_drawn = COffscreenContext::create(window);
    }
    ~editor_bench()
    {
        view->close();
        component->terminate();
    }

    /// Most by which a channel of the two drawn previews differs, in 255ths.
    int largest_difference()
    {
        step();
        forth = !forth; // both with one value
        plain_step();
        const auto a = drawn->getBitmap()->getPlatformBitmap()->lockPixels(true);
        const auto b = plain_drawn->getBitmap()->getPlatformBitmap()->lockPixels(true);
        int most = 0;
        for (std::size_t y = 0; y < preview_height; ++y)
            for (std::size_t i = 0; i < std::size_t{preview_width} * 4; ++i)
                most = std::max(most, std::abs(a->getAddress()[y * a->getBytesPerRow() + i] -
                                               b->getAddress()[y * b->getBytesPerRow() + i]));
        return most;
    }

    /// A drag as the host runs it: set a value, build, render the preview, draw.
    void step()
    {
        move_wheel();
        component->notify({event_kind::render_begins});
        if (!render_image(*component->get_row_renderer(), *source, *destination))
            return;
        view->set_preview_image(*destination);
        view->idle();
        drawn->beginDraw();
        view->getFrame()->drawRect(drawn, CRect(0, 0, shown_width, preview_height));
        drawn->endDraw();
    }

    /// The same without the view: plain build, plain pixels, one bitmap.
    void plain_step()
    {
        move_wheel();
        grade_settings settings = everything_active();
        settings.settings[5].value = forth ? 210.0f : 200.0f;
        build_lut_reference(settings, looks, skin, plain_table);
        const auto renderer = make_plain_renderer(plain_table);
        if (!plain_bitmap)
            plain_bitmap = makeOwned<CBitmap>(preview_width, preview_height);
        {
            const auto pixels = plain_bitmap->getPlatformBitmap()->lockPixels(true);
            for (std::uint32_t y = 0; y < preview_height; ++y)
                draw_plain_row(*renderer, y, pixels->getAddress() + std::size_t{y} * pixels->getBytesPerRow());
        }
        plain_drawn->beginDraw();
        plain_bitmap->draw(plain_drawn, CRect(0, 0, preview_width, preview_height));
        plain_drawn->endDraw();
    }

private:
    void set_value(int parameter, float value)
    {
        const auto set = component->get_parameter(parameter);
        param_value record = set->get_param_value();
        record.value = param_cell::of(value);
        set->set_param_value(record, true);
    }

    /// Changes a wheel as a mouse move does, back and forth, so that every step has a table to build.
    void move_wheel()
    {
        constexpr int hue = 5; // of the shadows' wheel
        set_value(hue, forth ? 200.0f : 210.0f);
        forth = !forth;
    }

    void draw_plain_row(const pixel_renderer& renderer, std::uint32_t y, std::uint8_t* to) const
    {
        const auto code = [](float v)
        { return static_cast<std::uint8_t>(std::min(std::max(v, 0.0f), 1.0f) * 255.0f + 0.5f); };
        const auto* from = reinterpret_cast<const argb_float*>(source->row(y));
        for (std::uint32_t x = 0; x < preview_width; ++x, to += 4)
        {
            argb_float graded;
            renderer.render_pixel(x, y, from[x], graded);
            to[0] = code(graded.b);
            to[1] = code(graded.g);
            to[2] = code(graded.r);
            to[3] = 255;
        }
    }

    const double shown_width;
    const std::shared_ptr<icomponent_v1> component = create_ccomponent();
    const std::shared_ptr<veridial_ui> view = std::make_shared<veridial_ui>(component);
    const frame frame_pixels = make_frame(content::natural, preview_width, preview_height);
    const std::shared_ptr<image> source =
        std::make_shared<image>(preview_width, preview_height, image::pixel_type::argb_f32, image::origin::top_left);
    const std::shared_ptr<image> destination =
        std::make_shared<image>(preview_width, preview_height, image::pixel_type::argb_f32, image::origin::top_left);
    SharedPointer<COffscreenContext> drawn;
    SharedPointer<COffscreenContext> plain_drawn;
    SharedPointer<CBitmap> plain_bitmap;
    const veridial_luts looks;
    const skin_tables skin;
    lut<lut_edge> plain_table;
    bool forth = false;
};

} // namespace

void run_editor_bench(report& to, int rounds)
{
    to.say(fmt::format("\nEditor, preview {} x {} on as many pixels", preview_width, preview_height));
    const editor_guard editor;
    editor_bench without(false), with(true);
    to.answer("drawn pixels of a drag, in 255ths", without.largest_difference(), 1);
    const std::vector<contender> contenders = {{"drag in the editor, to drawn pixels", [&] { without.step(); }},
                                               {"the same with all four scopes", [&] { with.step(); }},
                                               {"without scopes, in plain code", [&] { without.plain_step(); }}};
    const auto seconds = median_seconds(contenders, 3 * rounds);
    for (std::size_t i = 0; i < contenders.size(); ++i)
        to.say(fmt::format("  {:<40} {:>8.0f} microseconds", contenders[i].name, seconds[i] * 1e6));
    to.say(fmt::format("  scopes on against off: {:.2f}", seconds[1] / seconds[0]));
    to.ratio("one step of a drag in the editor, against plain code", seconds[2] / seconds[0], 4);
}

} // namespace ov1::bench
