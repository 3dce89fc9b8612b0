#include "host/simulator/value_archive.h"

/// GNUstep's decoder does not check classes; this one does, as macOS's does.
@interface strict_unarchiver : NSKeyedUnarchiver
@end

@implementation strict_unarchiver

- (id)decodeObjectOfClasses:(NSSet*)classes forKey:(NSString*)key
{
    const id object = [self decodeObjectForKey:key];
    if (object == nil)
        return nil;
    for (Class allowed in classes)
        if ([object isKindOfClass:allowed])
            return object;
    // An exception, as on macOS. A nil would mean that the key is missing.
    [NSException raise:NSInvalidUnarchiveOperationException
                format:@"\"%@\" is of the class %@, which was not named", key, NSStringFromClass([object class])];
    return nil;
}

- (id)decodeObjectOfClass:(Class)allowed forKey:(NSString*)key
{
    return [self decodeObjectOfClasses:[NSSet setWithObject:allowed] forKey:key];
}

@end

namespace ov1
{

namespace
{

NSString* const root_key = @"value";

} // namespace

std::vector<std::uint8_t> archive_value(archived_object* value)
{
    // No archive, instead of the archive of nothing.
    if (value == nil)
        return {};
    @autoreleasepool
    {
        NSMutableData* const data = [NSMutableData data];
        NSKeyedArchiver* const archiver = [[[NSKeyedArchiver alloc] initForWritingWithMutableData:data] autorelease];
        // As a real host does: a class without secure coding fails here and not only on macOS.
        [archiver setRequiresSecureCoding:YES];
        [archiver encodeObject:value forKey:root_key];
        [archiver finishEncoding];
        const auto* const first = static_cast<const std::uint8_t*>([data bytes]);
        return {first, first + [data length]};
    }
}

result<archived_object*> unarchive_value(const std::vector<std::uint8_t>& archive, Class expected)
{
    archived_object* value = nil;
    failure why{failure_kind::invalid_grade, {}, "holds no value", {}};
    @autoreleasepool
    {
        @try
        {
            NSData* const data = [NSData dataWithBytes:archive.data() length:archive.size()];
            strict_unarchiver* const decoder = [[[strict_unarchiver alloc] initForReadingWithData:data] autorelease];
            // Damaged bytes raise exceptions of several names; all of them mean the same here.
            [decoder setRequiresSecureCoding:YES];
            // Retained, to outlive the pool that also frees the decoder's temporary objects.
            value = [[decoder decodeObjectOfClass:expected forKey:root_key] retain];
        }
        @catch (NSException* exception)
        {
            const char* const text = [[exception reason] UTF8String];
            why.reason = text == nullptr ? "cannot be decoded" : text;
        }
    }
    if (value == nil)
        return why;
    return [value autorelease];
}

} // namespace ov1
