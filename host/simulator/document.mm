// Documents of the simulated host: a property list.
//
//   format       "veridial-host document 1"
//   parameters   id -> { name, value (value_text.h) or archive (data), keyframes: time -> value, if there are any }
#include "host/simulator/simulator_core.h"
#include "host/simulator/value_text.h"

namespace ov1
{

namespace
{

NSString* const format_name = @"veridial-host document 1";

NSString* host_text(const std::string& text) { return [NSString stringWithUTF8String:text.c_str()]; }

/// Empty for an object that is no text: the parsers then refuse it.
std::string text_of(id object)
{
    const char* const text = [object isKindOfClass:[NSString class]] ? [object UTF8String] : nullptr;
    return text == nullptr ? std::string() : text;
}

NSDictionary* dictionary_of(const stored_parameter& p)
{
    NSMutableDictionary* const entry = [NSMutableDictionary dictionary];
    [entry setObject:host_text(p.name) forKey:@"name"];
    // Only archives are binary; all else is text, so that two documents can be compared line by line.
    if (const auto* archive = std::get_if<store_archive>(&p.value))
        [entry setObject:[NSData dataWithBytes:archive->data() length:archive->size()] forKey:@"archive"];
    else
        [entry setObject:host_text(text_of_value(p.value)) forKey:@"value"];
    NSMutableDictionary* const keyframes = [NSMutableDictionary dictionary];
    for (const auto& [time, value] : p.keyframes)
        [keyframes setObject:host_text(text_of_value(value)) forKey:host_text(text_of_time(time))];
    if ([keyframes count] > 0)
        [entry setObject:keyframes forKey:@"keyframes"];
    return entry;
}

bool read_keyframes(NSDictionary* from, stored_parameter& p)
{
    if (from == nil)
        return true;
    if (![from isKindOfClass:[NSDictionary class]])
        return false;
    for (NSString* key in from)
    {
        const auto time = time_of_text(text_of(key));
        const auto value = value_of_text(text_of([from objectForKey:key]));
        // A keyframe must have the type of the parameter's value.
        if (!time || !value || value->index() != p.value.index())
            return false;
        p.keyframes[*time] = *value;
    }
    return true;
}

bool read_parameter(NSDictionary* entry, stored_parameter& p)
{
    if (![entry isKindOfClass:[NSDictionary class]])
        return false;
    p.name = text_of([entry objectForKey:@"name"]);
    NSData* const archive = [entry objectForKey:@"archive"];
    if ([archive isKindOfClass:[NSData class]])
    {
        const auto* const first = static_cast<const std::uint8_t*>([archive bytes]);
        p.value = store_archive(first, first + [archive length]);
    }
    else if (const auto value = value_of_text(text_of([entry objectForKey:@"value"])))
        p.value = *value;
    else
        return false;
    return read_keyframes([entry objectForKey:@"keyframes"], p);
}

/// The document's root; nil when the bytes are not a property list with a dictionary.
NSDictionary* parsed(const std::vector<std::uint8_t>& bytes)
{
    // GNUstep raises for some damaged files where it could return nil.
    @try
    {
        NSData* const data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
        const id root = [NSPropertyListSerialization propertyListWithData:data
                                                                  options:NSPropertyListImmutable
                                                                   format:NULL
                                                                    error:NULL];
        return [root isKindOfClass:[NSDictionary class]] ? root : nil;
    }
    @catch (NSException*)
    {
        return nil;
    }
}

} // namespace

result<std::vector<std::uint8_t>> simulated_host::write_document() const
{
    @autoreleasepool
    {
        NSMutableDictionary* const parameters = [NSMutableDictionary dictionary];
        for (const auto& [id, p] : impl->store.copy())
            [parameters setObject:dictionary_of(p) forKey:host_text(std::to_string(id))];
        NSDictionary* const root =
            [NSDictionary dictionaryWithObjectsAndKeys:format_name, @"format", parameters, @"parameters", nil];
        NSData* const data = [NSPropertyListSerialization dataWithPropertyList:root
                                                                        format:NSPropertyListXMLFormat_v1_0
                                                                       options:0
                                                                         error:NULL];
        if (data == nil)
            return failure{failure_kind::cannot_write, {}, "cannot be written as a property list", {}};
        const auto* const first = static_cast<const std::uint8_t*>([data bytes]);
        return std::vector<std::uint8_t>(first, first + [data length]);
    }
}

result<> simulated_host::read_document(const std::vector<std::uint8_t>& bytes)
{
    @autoreleasepool
    {
        NSDictionary* const root = parsed(bytes);
        NSDictionary* const entries = [root objectForKey:@"parameters"];
        if (![[root objectForKey:@"format"] isEqual:format_name] || ![entries isKindOfClass:[NSDictionary class]])
            return failure{failure_kind::invalid_grade, {}, "is not a document of this program", {}};
        // Parsed completely before anything is restored: a damaged document changes nothing.
        parameters_by_id parameters;
        for (NSString* key in entries)
        {
            stored_parameter p;
            if (!read_parameter([entries objectForKey:key], p))
                return failure{failure_kind::invalid_grade, {}, "parameter " + text_of(key) + " is damaged", {}};
            // A key that is not a number gives id 0. No parameter has it, so restore ignores the entry.
            parameters[static_cast<std::uint32_t>([key intValue])] = std::move(p);
        }
        impl->store.restore(parameters);
        return {};
    }
}

} // namespace ov1
