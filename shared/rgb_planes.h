// Rows of pixels with one array per colour channel.
#pragma once

namespace ov1
{

/// Three rows, one for each colour channel. Owns nothing.
template <class sample>
struct rgb_planes
{
    sample* r;
    sample* g;
    sample* b;
};

} // namespace ov1
