#include "editor/controls/style/cov_bitmap.h"

namespace ov1
{

COVBitmap::COVBitmap(const VSTGUI::CResourceDescription& resource, double scale)
    : CBitmap(resource)
{
    if (const auto loaded = getPlatformBitmap())
        loaded->setScaleFactor(scale);
}

} // namespace ov1
