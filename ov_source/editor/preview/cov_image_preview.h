// The preview of one editor, and the component whose grade it shows.
#pragma once

#include "editor/preview/preview_view.h"
#include "framework/icomponent_v1.h"

#include <memory>

namespace ov1
{

/// owner_type has `colour_picked(const std::optional<picked_colour>&)`, called with the colour under the mouse and with
/// nothing when the mouse leaves the picture.
template <class owner_type>
class COVImagePreview : public preview_view
{
public:
    COVImagePreview(const VSTGUI::CRect& size, std::weak_ptr<icomponent_v1> component)
        : preview_view(size)
        , component(std::move(component))
    {
    }

    /// Not owned; the owner outlives the view.
    void setOwner(owner_type& owner)
    {
        set_colour_listener([&owner](const std::optional<picked_colour>& colour) { owner.colour_picked(colour); });
    }

    /// The component whose grade is shown; null once it is gone.
    std::shared_ptr<icomponent_v1> getComponent() const { return component.lock(); }

private:
    const std::weak_ptr<icomponent_v1> component;
};

} // namespace ov1
