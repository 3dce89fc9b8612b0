// An editor without controls, for tests of editor sessions.
#pragma once

#include "framework/iview_v1.h"
#include "framework/preview_sink.h"
#include "framework/window.h"
#include "shared/argb_float.h"
#include "shared/image.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ov1
{

/// Runs one step of the script at each idle call and counts as closed after the last step.
struct scripted_view : iview_v1, preview_sink
{
    bool query_interface(const std::string&, iobject**) override { return false; }
    rect get_rect() const override { return {0, 0, 1024, 528}; }
    bool open(std::shared_ptr<window> window) override
    {
        shown = std::move(window);
        return true;
    }
    void close() override { shown->close(); }
    bool is_open() override { return shown && shown->is_open() && step <= script.size(); }
    bool is_editing() override { return false; }
    bool idle() override
    {
        if (step < script.size())
            script[step]();
        ++step;
        shown->pop_pending_messages();
        return true;
    }
    void init_view() override {}
    void set_control_from_parameter(std::shared_ptr<iparameter_v1>, bool) override {}
    void update_controls(bool) override {}
    void register_parameter_change_listener(iparameter_change_listener_v1*) override {}
    void unregister_parameter_change_listener(iparameter_change_listener_v1*) override {}

    void set_preview_image(image& picture) override
    {
        graded.push_back(reinterpret_cast<argb_float*>(picture.pixels())->r);
    }
    void set_preview_source(const image& picture) override { source_widths.push_back(picture.get_width()); }
    void offer_frames(int count, std::function<void(int)> chosen) override
    {
        frames = count;
        choose = std::move(chosen);
    }

    std::shared_ptr<window> shown;
    std::vector<std::function<void()>> script;
    std::size_t step = 0;
    std::vector<float> graded; ///< red of each graded preview's first pixel
    std::vector<std::uint32_t> source_widths;
    int frames = 0;
    std::function<void(int)> choose;
};

} // namespace ov1
