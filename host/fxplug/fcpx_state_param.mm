#import "host/fxplug/fcpx_state_param.h"

#include "host/bridge/bridge_texts.h"

#include <mutex>

namespace
{

/// Shared by all instances: the host creates value objects without naming an instance.
struct shared_default
{
    std::mutex lock;
    std::vector<std::uint8_t> state;
};

shared_default& default_state()
{
    static shared_default one;
    return one;
}

NSString* coder_key() { return [NSString stringWithUTF8String:ov1::state_coder_key]; }

} // namespace

@implementation fcpx_state_param

@synthesize data;

+ (void)setDefaultState:(const std::vector<std::uint8_t>&)state
{
    const std::scoped_lock guard(default_state().lock);
    default_state().state = state;
}

+ (BOOL)supportsSecureCoding
{
    return YES;
}

- (instancetype)init
{
    if ((self = [super init]))
    {
        const std::scoped_lock guard(default_state().lock);
        const auto& state = default_state().state;
        data = [[NSData alloc] initWithBytes:state.data() length:state.size()];
    }
    return self;
}

- (instancetype)initWithCoder:(NSCoder*)coder
{
    if ((self = [super init]))
    {
        // The archive contains an NSData. A strict decoder refuses it unless NSData is named as well.
        NSSet* const classes = [NSSet setWithObjects:[fcpx_state_param class], [NSData class], nil];
        data = [[coder decodeObjectOfClasses:classes forKey:coder_key()] retain];
    }
    return self;
}

- (void)encodeWithCoder:(NSCoder*)coder
{
    [coder encodeObject:self.data forKey:coder_key()];
}

- (id)copyWithZone:(NSZone*)zone
{
    fcpx_state_param* const copy = [[fcpx_state_param allocWithZone:zone] init];
    // Both share the payload, which is immutable.
    copy.data = self.data;
    return copy;
}

- (NSObject<NSSecureCoding, NSCopying>*)interpolateBetween:(NSObject<NSSecureCoding, NSCopying>*)rightValue
                                                withWeight:(float)weight
{
    // A mean of two states would be no state.
    return [[self copy] autorelease];
}

- (BOOL)isEqual:(id)other
{
    return YES;
}

// Equal objects have equal hashes.
- (NSUInteger)hash
{
    return 1;
}

- (void)dealloc
{
    [data release];
    [super dealloc];
}

@end
