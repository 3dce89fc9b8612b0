// A frame without a window, whose controls are driven by synthetic events and drawn offscreen.
#pragma once

#include "vstgui/vstgui.h"

#include <string>
#include <utility>

namespace ov1
{

/// Writes down what controls tell.
struct control_log : VSTGUI::IControlListener
{
    void valueChanged(VSTGUI::CControl*) override { calls += "value "; }
    void controlBeginEdit(VSTGUI::CControl*) override { calls += "begin "; }
    void controlEndEdit(VSTGUI::CControl*) override { calls += "end "; }
    std::string take() { return std::exchange(calls, {}); }

    std::string calls;
};

/// Mouse and keys for a frame.
struct frame_driver
{
    /// Sends an event through the frame and gives back whether anything took it.
    template <class E>
    bool send(E event, VSTGUI::Modifiers keys = {})
    {
        event.modifiers = keys;
        frame->dispatchEvent(event);
        return event.consumed;
    }
    bool press(double x, double y, VSTGUI::MouseButton button = VSTGUI::MouseButton::Left, VSTGUI::Modifiers keys = {})
    {
        return send(VSTGUI::MouseDownEvent({x, y}, button), keys);
    }
    void drag(double x, double y, VSTGUI::Modifiers keys = {})
    {
        send(VSTGUI::MouseMoveEvent({x, y}, VSTGUI::MouseButton::Left), keys);
    }
    void release(double x, double y) { send(VSTGUI::MouseUpEvent({x, y}, VSTGUI::MouseButton::Left)); }
    bool type(VSTGUI::VirtualKey key)
    {
        VSTGUI::KeyboardEvent event;
        event.virt = key;
        return send(std::move(event));
    }
    bool turn_wheel_up(const VSTGUI::CPoint& where)
    {
        VSTGUI::MouseWheelEvent event;
        event.mousePosition = where;
        event.deltaY = 1.0;
        return send(std::move(event));
    }

    VSTGUI::CFrame* frame = nullptr;
};

struct control_stage : frame_driver
{
    control_stage()
    {
        frame = new VSTGUI::CFrame({0.0, 0.0, 400.0, 300.0}, nullptr);
        frame->attached(frame);
        frame->onActivate(true); // or the keyboard reaches nothing
    }
    ~control_stage()
    {
        frame->removed(frame);
        frame->forget();
    }

    /// The frame owns the view from here on.
    template <class T>
    T& add(T* view)
    {
        frame->addView(view);
        return *view;
    }

    control_log log;
};

/// A picture that draw(CDrawContext&) makes, 1 pixel to the point.
template <class F>
VSTGUI::SharedPointer<VSTGUI::CBitmap> painted(double width, double height, F draw)
{
    const auto offscreen = VSTGUI::COffscreenContext::create({width, height});
    offscreen->beginDraw();
    draw(*offscreen);
    offscreen->endDraw();
    return VSTGUI::shared(offscreen->getBitmap());
}

inline VSTGUI::SharedPointer<VSTGUI::CBitmap> picture_of(VSTGUI::CView& view)
{
    return painted(view.getViewSize().right, view.getViewSize().bottom, [&](auto& context) { view.draw(&context); });
}

/// Colours are premultiplied.
inline VSTGUI::CColor pixel(VSTGUI::CBitmap& picture, double x, double y)
{
    VSTGUI::CColor colour;
    const auto pixels = VSTGUI::owned(VSTGUI::CBitmapPixelAccess::create(&picture));
    if (pixels->setPosition(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y)))
        pixels->getColor(colour);
    return colour;
}

inline void fill(VSTGUI::CDrawContext& context, const VSTGUI::CRect& rect, const VSTGUI::CColor& colour)
{
    context.setDrawMode(VSTGUI::kAliasing);
    context.setFillColor(colour);
    context.drawRect(rect, VSTGUI::kDrawFilled);
}

} // namespace ov1
