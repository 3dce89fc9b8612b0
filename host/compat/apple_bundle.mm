// A main bundle in Apple's layout: the program in Contents/MacOS, next to Contents/Info.plist and Contents/Resources.
// GNUstep expects another layout and finds neither properties nor resources there.
#import <Foundation/Foundation.h>
#import <objc/runtime.h>

// The linker's option -u names it: nothing else refers to this file, so the linker would leave it out.
extern "C" const int apple_bundle_is_linked = 1;

@interface contents_bundle : NSBundle
{
    NSString* root;
    NSDictionary* properties;
}
- (instancetype)initWithRoot:(NSString*)path;
@end

@implementation contents_bundle

- (instancetype)initWithRoot:(NSString*)path
{
    if ((self = [super initWithPath:path]))
    {
        root = [path copy];
        NSString* const file = [path stringByAppendingPathComponent:@"Contents/Info.plist"];
        properties = [[NSDictionary alloc] initWithContentsOfFile:file];
    }
    return self;
}

- (void)dealloc
{
    [properties release];
    [root release];
    [super dealloc];
}

- (NSString*)bundlePath
{
    return root;
}
- (NSString*)resourcePath
{
    return [root stringByAppendingPathComponent:@"Contents/Resources"];
}
- (NSDictionary*)infoDictionary
{
    return properties;
}
- (NSString*)bundleIdentifier
{
    return [properties objectForKey:@"CFBundleIdentifier"];
}

- (NSString*)pathForResource:(NSString*)name ofType:(NSString*)extension
{
    NSString* const file = [extension length] == 0 ? name : [name stringByAppendingPathExtension:extension];
    NSString* const path = [[self resourcePath] stringByAppendingPathComponent:file];
    return [[NSFileManager defaultManager] fileExistsAtPath:path] ? path : nil;
}

@end

namespace
{

/// The bundle that contains this program; nil when it is in none.
NSBundle* make_bundle_around_program()
{
    // Not argv[0], which may be a relative path or missing.
    NSString* const program = [[NSFileManager defaultManager] pathContentOfSymbolicLinkAtPath:@"/proc/self/exe"];
    NSString* const folder = [program stringByDeletingLastPathComponent];
    NSString* const contents = [folder stringByDeletingLastPathComponent];
    if (![[folder lastPathComponent] isEqualToString:@"MacOS"] ||
        ![[contents lastPathComponent] isEqualToString:@"Contents"])
        return nil;
    return [[contents_bundle alloc] initWithRoot:[contents stringByDeletingLastPathComponent]];
}

} // namespace

@interface NSBundle (contents_bundle)
+ (NSBundle*)bundle_around_program;
@end

@implementation NSBundle (contents_bundle)

/// Exchanges the two methods: +mainBundle then runs the code below, and +bundle_around_program is GNUstep's original.
+ (void)load
{
    method_exchangeImplementations(class_getClassMethod(self, @selector(mainBundle)),
                                   class_getClassMethod(self, @selector(bundle_around_program)));
}

+ (NSBundle*)bundle_around_program
{
    static NSBundle* const around = make_bundle_around_program();
    // No recursion: after the exchange this name calls GNUstep's own method.
    return around != nil ? around : [self bundle_around_program];
}

@end
