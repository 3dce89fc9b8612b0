// Copying a grade and pasting it elsewhere, as preset text in a file that all editors of the user share.
#pragma once

#include "framework/icomponent_v1.h"

#include <string>

namespace ov1
{

/// The toolkit has no clipboard on X11, hence the file. The reason of a failure is one line.
[[nodiscard]] bool copy_grade(icomponent_v1& component, std::string& reason);

/// Replaces the grade by the copied one as one undo step; a failure leaves it as it was.
[[nodiscard]] bool paste_grade(icomponent_v1& component, std::string& reason);

} // namespace ov1
