// Reads the properties of the program's own bundle.
#pragma once

#include "host/bridge/template_writer.h"

#import <Foundation/Foundation.h>

#include <optional>
#include <string>

namespace ov1
{

/// The text's bytes in the given encoding; empty for nil and for a text that the encoding cannot express.
std::string cfstring_to_string(NSString* text, NSStringEncoding encoding);

/// The bundle's path as UTF-8. When it is unknown, prints a line to standard output and returns nothing.
std::optional<std::string> get_bundle_path(NSBundle* bundle);

/// Path and first plug-in entry of a bundle.
bundle_facts read_bundle_facts(NSBundle* bundle);

} // namespace ov1
