// A component that can hand out its colour table.
#pragma once

#include "shared/iobject.h"

namespace ov1
{

class lut_argb_variable;

/// Asked for with icomponent_v1::query_interface("lut_exporter").
class lut_exporter : public iobject
{
public:
    /// Replaces *out by the table of the present values, brought up to date first. False when out is null.
    [[nodiscard]] virtual bool get_lut(lut_argb_variable* out) = 0;
};

} // namespace ov1
