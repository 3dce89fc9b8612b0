// Failures of the media rooms. Their subject, a path as the user gave it, is added by the caller.
#pragma once

#include "shared/failure.h"

#include <string>
#include <utility>

namespace ov1::media
{

/// The input is missing, damaged, or cannot be read.
inline failure unreadable(std::string reason, std::string hint = {})
{
    return {.kind = failure_kind::unreadable, .reason = std::move(reason), .hint = std::move(hint)};
}

/// The input or the request is valid, but is not handled; the hint says what is.
inline failure unsupported(std::string reason, std::string hint = {})
{
    return {.kind = failure_kind::unsupported, .reason = std::move(reason), .hint = std::move(hint)};
}

/// The output could not be encoded or written.
inline failure cannot_write(std::string reason, std::string hint = {})
{
    return {.kind = failure_kind::cannot_write, .reason = std::move(reason), .hint = std::move(hint)};
}

} // namespace ov1::media
