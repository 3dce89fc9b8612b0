// UTF-8 sequences in bytes that may be anything.
#pragma once

#include <cstddef>
#include <string_view>

namespace ov1
{

/// The length in bytes of the UTF-8 sequence at the start of a text, 1 to 4; 0 where the text is empty or begins with
/// none (RFC 3629, section 4).
/// Overlong forms, surrogates and code points above U+10FFFF are none, as are sequences cut off by the end.
std::size_t utf8_length(std::string_view text);

} // namespace ov1
