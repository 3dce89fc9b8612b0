// What the program's own bundle says of it.
#pragma once

#include "host/bridge/template_writer.h"

#import <Foundation/Foundation.h>

#include <optional>
#include <string>

namespace ov1
{

/// The text in the given encoding; empty for nil and where it has none.
std::string cfstring_to_string(NSString* text, NSStringEncoding encoding);

/// The bundle's path in the file system. Nothing, with a line on the standard output, where it has none.
std::optional<std::string> get_bundle_path(NSBundle* bundle);

/// Path and plug-in entry of a bundle.
bundle_facts read_bundle_facts(NSBundle* bundle);

} // namespace ov1
