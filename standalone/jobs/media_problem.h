// A failure of the picture room, as the program tells it.
#pragma once

#include "command_line/problem.h"
#include "shared/failure.h"

#include <string>

namespace ov1
{

/// The subject is the path as the user gave it.
problem problem_of(const failure& why, const std::string& subject);

} // namespace ov1
