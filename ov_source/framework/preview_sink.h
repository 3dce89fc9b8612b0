// Receives the images of the preview.
#pragma once

#include <functional>

namespace ov1
{

class image;

/// An editor that shows previews implements it in addition to iview_v1; callers find it by a dynamic cast of the view.
class preview_sink
{
public:
    virtual ~preview_sink() = default;

    /// The graded image. The sink copies what it needs before it returns.
    virtual void set_preview_image(image& picture) = 0;
    /// The image before the grade, for comparison. Called before the first graded image of the same size.
    virtual void set_preview_source(const image& picture) = 0;
    /// Lets the user choose the frame of the preview, 0..count - 1, and calls chosen. No choice if count is 1 or less.
    virtual void offer_frames(int count, std::function<void(int frame)> chosen) = 0;
};

} // namespace ov1
