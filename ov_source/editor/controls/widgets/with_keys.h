// A view that receives the frame's key events while it is attached to the frame.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// take_key receives each key event before all views and before keyboard hooks that were registered earlier. An event
/// that it consumes reaches none of them.
template <class view>
class with_keys : public view, public VSTGUI::IKeyboardHook
{
public:
    using view::onKeyboardEvent;
    using view::view;

    bool attached(VSTGUI::CView* parent) override
    {
        if (!view::attached(parent))
            return false;
        view::getFrame()->registerKeyboardHook(this);
        return true;
    }
    bool removed(VSTGUI::CView* parent) override
    {
        if (auto* frame = view::getFrame())
            frame->unregisterKeyboardHook(this);
        return view::removed(parent);
    }
    void onKeyboardEvent(VSTGUI::KeyboardEvent& event, VSTGUI::CFrame*) final { take_key(event); }

protected:
    virtual void take_key(VSTGUI::KeyboardEvent& event) = 0;
};

} // namespace ov1
