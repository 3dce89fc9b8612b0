// Where the pictures of the preview go.
#pragma once

#include <functional>

namespace ov1
{

class image;

/// An editor that shows previews implements it beside iview_v1 and is found by a dynamic cast from the view.
class preview_sink
{
public:
    virtual ~preview_sink() = default;

    /// The graded picture. Takes what it needs of it before it returns.
    virtual void set_preview_image(image& picture) = 0;
    /// The picture before the grade, for comparison; it precedes the first graded one of its size.
    virtual void set_preview_source(const image& picture) = 0;
    /// Lets the user choose the preview's frame, 0..count - 1; no choice when count is 1 or less.
    virtual void offer_frames(int count, std::function<void(int frame)> chosen) = 0;
};

} // namespace ov1
