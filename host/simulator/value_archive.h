// Archives of custom parameter values, by keyed secure coding, as documents store them.
#pragma once

#include "shared/result.h"

#import <Foundation/Foundation.h>

#include <cstdint>
#include <vector>

namespace ov1
{

/// The base type that the host's interface requires of custom values.
using archived_object = NSObject<NSSecureCoding, NSCopying>;

/// The archive of a value; empty for nil.
std::vector<std::uint8_t> archive_value(archived_object* value);

/// The archived value, autoreleased; never nil. Decodes strictly, as macOS does: fails when any object, the value
/// itself included, is not of a class that its decoder named, and for bytes that are not an archive.
result<archived_object*> unarchive_value(const std::vector<std::uint8_t>& archive, Class expected);

} // namespace ov1
