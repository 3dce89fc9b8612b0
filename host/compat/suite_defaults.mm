// User defaults of a named suite, which GNUstep's NSUserDefaults does not offer.
#import <Foundation/Foundation.h>

// The linker's option -u names it; see apple_bundle.mm.
extern "C" const int suite_defaults_are_linked = 1;

/// One persistent domain of the standard defaults, without any fallback.
@interface suite_defaults : NSUserDefaults
{
    NSString* domain;
}
- (instancetype)initWithDomain:(NSString*)name;
@end

@implementation suite_defaults

- (instancetype)initWithDomain:(NSString*)name
{
    if ((self = [super init]))
        domain = [name copy];
    return self;
}

- (void)dealloc
{
    [domain release];
    [super dealloc];
}

- (NSDictionary*)dictionaryRepresentation
{
    NSDictionary* const values = [[NSUserDefaults standardUserDefaults] persistentDomainForName:domain];
    // Never nil: a suite without values is an empty dictionary.
    return values != nil ? values : [NSDictionary dictionary];
}

- (id)objectForKey:(NSString*)key
{
    return [[self dictionaryRepresentation] objectForKey:key];
}

- (void)setObject:(id)value forKey:(NSString*)key
{
    NSUserDefaults* const all = [NSUserDefaults standardUserDefaults];
    // Reading and writing back the whole domain is one step: two threads may set different keys.
    @synchronized(all)
    {
        NSMutableDictionary* const values = [[[self dictionaryRepresentation] mutableCopy] autorelease];
        if (value != nil)
            [values setObject:value forKey:key];
        else
            [values removeObjectForKey:key];
        [all setPersistentDomain:values forName:domain];
    }
}

- (void)removeObjectForKey:(NSString*)key
{
    [self setObject:nil forKey:key];
}
- (BOOL)synchronize
{
    return [[NSUserDefaults standardUserDefaults] synchronize];
}

@end

@implementation NSUserDefaults (apple_additions)

- (instancetype)initWithSuiteName:(NSString*)name
{
    // An initialiser may return another object than the one it was sent to.
    [self release];
    return [[suite_defaults alloc] initWithDomain:name];
}

@end
