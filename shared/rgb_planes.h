// Rows of pixels whose colour channels lie apart.
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
