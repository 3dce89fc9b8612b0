// A bitmap with a given number of pixels to the point.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

class COVBitmap : public VSTGUI::CBitmap
{
public:
    /// A scale of 2 makes the bitmap half as wide and high in points as it is in pixels. isLoaded() is false
    /// where the resource was not found.
    COVBitmap(const VSTGUI::CResourceDescription& resource, double scale);
};

} // namespace ov1
