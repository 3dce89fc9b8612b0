// A component that provides its colour table.
#pragma once

#include "shared/iobject.h"

namespace ov1
{

class lut_argb_variable;

/// Obtained with icomponent_v1::query_interface("lut_exporter").
class lut_exporter : public iobject
{
public:
    /// Replaces *out with the table of the present parameter values, built first if necessary. Returns false if out is
    /// null.
    [[nodiscard]] virtual bool get_lut(lut_argb_variable* out) = 0;
};

} // namespace ov1
