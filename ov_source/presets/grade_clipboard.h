// Copies a grade and pastes it elsewhere: preset text in a file that all editors of the user share.
#pragma once

#include "shared/result.h"

namespace ov1
{

class icomponent_v1;

/// Writes the present grade to the file, because the toolkit has no clipboard on X11. Failures name no subject.
result<> copy_grade(icomponent_v1& component);

/// Replaces the grade by the copied one as one undo step. A failure leaves grade and undo history unchanged.
/// Only on the thread of the editor, which owns the history.
result<> paste_grade(icomponent_v1& component);

} // namespace ov1
