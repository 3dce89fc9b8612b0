// The language in which texts are shown.
#pragma once

#include <cstdint>

namespace ov1
{

/// Every value other than German is shown in English.
enum class language_id : std::int32_t
{
    english = 0,
    german = 1,
};

} // namespace ov1
