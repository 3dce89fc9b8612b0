#include "host/simulator/value_archive.h"

/// The desktop's own decoder does not look at classes.
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
    [NSException raise:NSInvalidUnarchiveOperationException
                format:@"%@ of \"%@\" is of no class that was named", NSStringFromClass([object class]), key];
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

std::vector<std::uint8_t> archive_value(NSObject<NSSecureCoding, NSCopying>* value)
{
    if (value == nil)
        return {};
    @autoreleasepool
    {
        NSMutableData* const data = [NSMutableData data];
        NSKeyedArchiver* const archiver = [[[NSKeyedArchiver alloc] initForWritingWithMutableData:data] autorelease];
        [archiver setRequiresSecureCoding:YES];
        [archiver encodeObject:value forKey:root_key];
        [archiver finishEncoding];
        const auto* const first = static_cast<const std::uint8_t*>([data bytes]);
        return {first, first + [data length]};
    }
}

NSObject<NSSecureCoding, NSCopying>* unarchive_value(const std::vector<std::uint8_t>& archive, Class kind,
                                                     std::string& reason)
{
    NSObject<NSSecureCoding, NSCopying>* value = nil;
    @autoreleasepool
    {
        @try
        {
            NSData* const data = [NSData dataWithBytes:archive.data() length:archive.size()];
            strict_unarchiver* const decoder = [[[strict_unarchiver alloc] initForReadingWithData:data] autorelease];
            [decoder setRequiresSecureCoding:YES];
            value = [[decoder decodeObjectOfClass:kind forKey:root_key] retain];
            if (value == nil)
                reason = "holds no value";
        }
        @catch (NSException* exception)
        {
            const char* const text = [[exception reason] UTF8String];
            reason = text == nullptr ? "cannot be decoded" : text;
        }
    }
    return [value autorelease];
}

} // namespace ov1
