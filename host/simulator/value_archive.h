// Custom values as archives, by keyed and secure coding.
#pragma once

#import <Foundation/Foundation.h>

#include <cstdint>
#include <string>
#include <vector>

namespace ov1
{

/// The archive of a value; empty for nil.
std::vector<std::uint8_t> archive_value(NSObject<NSSecureCoding, NSCopying>* value);

/// The value of an archive, which must be of the class, autoreleased. Every object that is decoded must be of a class
/// that its decoder named, as strict systems have it; else, and for bytes that are no archive, nil with a reason.
NSObject<NSSecureCoding, NSCopying>* unarchive_value(const std::vector<std::uint8_t>& archive, Class kind,
                                                     std::string& reason);

} // namespace ov1
