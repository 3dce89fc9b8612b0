#include "host/fxplug/bundle_info.h"

#include <cstdio>

namespace ov1
{

namespace
{

/// Writes the uuid only when the search is complete.
bundle_facts::listing read_listing(NSDictionary* properties, std::string& uuid)
{
    // Every class is checked: the file belongs to whoever installed the bundle.
    if (properties == nil)
        return bundle_facts::listing::no_properties;
    NSArray* const list = [properties objectForKey:@"ProPlugPlugInList"];
    if (![list isKindOfClass:[NSArray class]])
        return bundle_facts::listing::no_list;
    NSDictionary* const entry = [list count] > 0 ? [list objectAtIndex:0] : nil;
    if (![entry isKindOfClass:[NSDictionary class]])
        return bundle_facts::listing::no_entry;
    NSString* const text = [entry objectForKey:@"uuid"];
    if (![text isKindOfClass:[NSString class]])
        return bundle_facts::listing::no_uuid;
    uuid = cfstring_to_string(text, NSUTF8StringEncoding);
    return bundle_facts::listing::complete;
}

} // namespace

std::string cfstring_to_string(NSString* text, NSStringEncoding encoding)
{
    // Not -UTF8String, which would end at a zero byte and knows one encoding only.
    NSData* const bytes = [text dataUsingEncoding:encoding];
    return bytes == nil ? std::string() : std::string(static_cast<const char*>([bytes bytes]), [bytes length]);
}

std::optional<std::string> get_bundle_path(NSBundle* bundle)
{
    NSString* const path = [bundle bundlePath];
    if ([path length] == 0)
    {
        std::puts("Could not determine bundle location.");
        return std::nullopt;
    }
    return cfstring_to_string(path, NSUTF8StringEncoding);
}

bundle_facts read_bundle_facts(NSBundle* bundle)
{
    bundle_facts facts;
    facts.path = get_bundle_path(bundle);
    facts.plugin = read_listing([bundle infoDictionary], facts.uuid);
    return facts;
}

} // namespace ov1
