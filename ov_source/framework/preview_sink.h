// Where a rendered preview goes.
#pragma once

namespace ov1
{

class image;

/// An editor that shows previews implements it beside iview_v1 and is found by a dynamic cast from the view.
class preview_sink
{
public:
    virtual ~preview_sink() = default;

    /// Takes what it needs of the picture before it returns.
    virtual void set_preview_image(image& picture) = 0;
};

} // namespace ov1
