// reopen_editor COUNT: opens and closes an editor COUNT times in one process, each time with a picture and a change of
// the grade.
#include "editor/editor_guard.h"
#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/editor_session.h"
#include "framework/icomponent_v1.h"
#include "framework/iview_v1.h"
#include "framework/parameters/iparameter_v1.h"
#include "shared/image.h"

#include <cstdio>
#include <cstdlib>

namespace
{

using namespace ov1;

std::shared_ptr<image> make_picture()
{
    return std::make_shared<image>(64, 36, image::pixel_type::argb_f32, image::origin::top_left);
}

bool run_session(const std::shared_ptr<icomponent_v1>& effect, int hue_degrees)
{
    editor_session session(effect);
    session.set_picture(make_picture(), make_picture());
    editor_session_options options;
    int turns = 0;
    options.pump = [&]
    {
        const auto hue = effect->get_parameter("Mids Hue");
        param_value record = hue->get_param_value();
        record.value = param_cell::of(static_cast<float>(hue_degrees));
        if (++turns == 2)
            hue->set_param_value(record, false);
        if (turns == 5)
            effect->get_view()->close();
    };
    return session.run(options) && turns == 5;
}

} // namespace

int main(int, char** arguments)
{
    const editor_guard editor;
    const auto effect = create_ccomponent();
    effect->initialize(std::make_shared<chost_v1>(effect));
    bool all_opened = true;
    for (int i = 0; i < std::atoi(arguments[1]) && all_opened; ++i)
        all_opened = run_session(effect, i);
    effect->terminate();
    std::puts(all_opened ? "opened all" : "an editor did not open");
    return all_opened ? 0 : 1;
}
