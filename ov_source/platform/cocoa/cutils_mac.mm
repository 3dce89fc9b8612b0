#include "platform/cocoa/cutils_mac.h"

#include "platform/folder_listing.h"

#import <AppKit/AppKit.h>

#include <algorithm>
#include <limits>
#include <sys/stat.h>

namespace ov1
{

namespace
{

/// Nil if the bytes are not UTF-8. Autoreleased.
NSString* text_of(const std::string& text)
{
    return [[[NSString alloc] initWithBytes:text.data() length:text.size() encoding:NSUTF8StringEncoding] autorelease];
}

/// Empty for nil.
std::string utf8_of(NSString* text)
{
    const char* const bytes = [text UTF8String];
    return bytes == nullptr ? std::string() : bytes;
}

NSUserDefaults* defaults_of(void* domain) { return static_cast<NSUserDefaults*>(domain); }

/// The caller releases it. Null for an empty name.
void* make_domain(const std::string& suite)
{
    return suite.empty() ? nullptr : [[NSUserDefaults alloc] initWithSuiteName:text_of(suite)];
}

/// Changes the defaults in memory; the system writes them to disk later.
bool set_value(void* domain, const std::string& key, id value)
{
    if (domain == nullptr || key.empty() || value == nil)
        return false;
    [defaults_of(domain) setObject:value forKey:text_of(key)];
    return true;
}

/// Nil unless the domain has a value of this class.
id get_value(void* domain, const std::string& key, Class kind)
{
    if (domain == nullptr || key.empty())
        return nil;
    const id value = [defaults_of(domain) objectForKey:text_of(key)];
    return [value isKindOfClass:kind] ? value : nil;
}

// These open a pool of their own, because a thread of the caller may have none.
bool set_data(void* domain, const std::string& key, std::span<const std::uint8_t> bytes)
{
    @autoreleasepool
    {
        return set_value(domain, key, [NSData dataWithBytes:bytes.data() length:bytes.size()]);
    }
}

bool get_data(void* domain, const std::string& key, std::vector<std::uint8_t>& bytes)
{
    @autoreleasepool
    {
        NSData* const data = get_value(domain, key, [NSData class]);
        if (data == nil)
            return false;
        const auto* const first = static_cast<const std::uint8_t*>([data bytes]);
        bytes.assign(first, first + [data length]);
        return true;
    }
}

bool set_text(void* domain, const std::string& key, const std::string& text)
{
    @autoreleasepool
    {
        return set_value(domain, key, text_of(text));
    }
}

bool get_text(void* domain, const std::string& key, std::string& text)
{
    @autoreleasepool
    {
        NSString* const found = get_value(domain, key, [NSString class]);
        if (found != nil)
            text = utf8_of(found);
        return found != nil;
    }
}

/// Removing a missing key succeeds.
bool remove_value(void* domain, const std::string& key)
{
    if (domain == nullptr || key.empty())
        return false;
    @autoreleasepool
    {
        [defaults_of(domain) removeObjectForKey:text_of(key)];
    }
    return true;
}

/// The frame of a window, or of the window that contains a view, in screen coordinates.
NSRect frame_of(void* handle)
{
    const id object = static_cast<id>(handle);
    NSWindow* const window = [object isKindOfClass:[NSView class]] ? [static_cast<NSView*>(object) window] : object;
    return [window frame];
}

/// In square points.
double area(NSRect r) { return r.size.width * r.size.height; }

} // namespace

cutils_mac::cutils_mac(const std::string& vendor_suite, const std::string& product_suite)
    : vendor_domain(make_domain(vendor_suite))
    , product_domain(make_domain(product_suite))
{
}

cutils_mac::~cutils_mac()
{
    [defaults_of(vendor_domain) release];
    [defaults_of(product_domain) release];
}

bool cutils_mac::set_bytes(const std::string& key, std::span<const std::uint8_t> bytes)
{
    return set_data(product_domain, key, bytes);
}
bool cutils_mac::get_bytes(const std::string& key, std::vector<std::uint8_t>& bytes)
{
    return get_data(product_domain, key, bytes);
}
bool cutils_mac::del_bytes(const std::string& key) { return remove_value(product_domain, key); }
bool cutils_mac::set_string(const std::string& key, const std::string& text)
{
    return set_text(product_domain, key, text);
}
bool cutils_mac::get_string(const std::string& key, std::string& text) { return get_text(product_domain, key, text); }

bool cutils_mac::set_vendor_bytes(const std::string& key, std::span<const std::uint8_t> bytes)
{
    return set_data(vendor_domain, key, bytes);
}
bool cutils_mac::get_vendor_bytes(const std::string& key, std::vector<std::uint8_t>& bytes)
{
    return get_data(vendor_domain, key, bytes);
}
bool cutils_mac::del_vendor_key(const std::string& key) { return remove_value(vendor_domain, key); }
bool cutils_mac::set_vendor_string(const std::string& key, const std::string& text)
{
    return set_text(vendor_domain, key, text);
}
bool cutils_mac::get_vendor_string(const std::string& key, std::string& text)
{
    return get_text(vendor_domain, key, text);
}

bool cutils_mac::set_vendor_uint32(const std::string& key, std::uint32_t value)
{
    @autoreleasepool
    {
        return set_value(vendor_domain, key, [NSNumber numberWithLongLong:value]);
    }
}

bool cutils_mac::get_vendor_uint32(const std::string& key, std::uint32_t& value)
{
    @autoreleasepool
    {
        // A missing key would read as the number 0.
        NSNumber* const number = get_value(vendor_domain, key, [NSNumber class]);
        // A nil number answers 0 and is rejected below.
        const long long wide = [number longLongValue];
        if (number == nil || wide < 0 || wide > std::numeric_limits<std::uint32_t>::max())
            return false;
        value = static_cast<std::uint32_t>(wide);
        return true;
    }
}

std::string cutils_mac::get_os_name_string() { return "macOS"; }

bool cutils_mac::get_os_version_string(std::string& text)
{
    const NSOperatingSystemVersion v = [[NSProcessInfo processInfo] operatingSystemVersion];
    text = std::to_string(v.majorVersion) + '.' + std::to_string(v.minorVersion) + '.' + std::to_string(v.patchVersion);
    return true;
}

bool cutils_mac::get_os_string(std::string& text)
{
    text = "Mac OS BUILD " + std::to_string(static_cast<int>(NSAppKitVersionNumber)) + " (64 Bits)";
    return true;
}

bool cutils_mac::alert_box(void* parent_window, const std::string& title, const std::string& message,
                           const std::string& button)
{
    return alert_box(parent_window, title, message, button, {});
}

bool cutils_mac::alert_box(void*, const std::string& title, const std::string& message, const std::string& first_button,
                           const std::string& second_button)
{
    @autoreleasepool
    {
        NSAlert* const alert = [[[NSAlert alloc] init] autorelease];
        [alert setMessageText:text_of(title)];
        [alert setInformativeText:text_of(message)];
        // The first button that is added is the default button.
        for (const std::string& button : {first_button, second_button})
            if (!button.empty())
                [alert addButtonWithTitle:text_of(button)];
        // Without a first button, the second is the alert's first.
        return [alert runModal] == NSAlertFirstButtonReturn && !first_button.empty();
    }
}

bool cutils_mac::get_resource(const std::string& name, std::vector<std::uint8_t>& bytes)
{
    @autoreleasepool
    {
        // Top level only: a name cannot point outside the folder.
        NSString* const whole = text_of(name);
        if ([whole length] == 0 || name.find('/') != std::string::npos)
            return false;
        NSString* const path = [[NSBundle mainBundle] pathForResource:[whole stringByDeletingPathExtension]
                                                               ofType:[whole pathExtension]];
        NSData* const data = path == nil ? nil : [NSData dataWithContentsOfFile:path];
        if (data == nil)
            return false;
        const auto* const first = static_cast<const std::uint8_t*>([data bytes]);
        bytes.assign(first, first + [data length]);
        return true;
    }
}

void cutils_mac::open_url(const std::string& text)
{
    @autoreleasepool
    {
        NSURL* const url = [NSURL URLWithString:text_of(text)];
        // A text without a scheme is a path.
        if (url == nil || [[url scheme] length] == 0)
            [[NSWorkspace sharedWorkspace] openFile:text_of(text)];
        else
            [[NSWorkspace sharedWorkspace] openURL:url];
    }
}

bool cutils_mac::is_main_thread() { return [NSThread isMainThread]; }

bool cutils_mac::create_dir(const std::string& path)
{
    // The mode is set afterwards, because changing the umask would affect all threads.
    return !path.empty() && mkdir(path.c_str(), 0777) == 0 && chmod(path.c_str(), 0777) == 0;
}

const std::string& cutils_mac::get_path_separator()
{
    // Never destroyed: destructors that run after main may still use it.
    static const std::string& separator = *new std::string("/");
    return separator;
}

void cutils_mac::get_screen_dimensions(void* window, int& width, int& height)
{
    @autoreleasepool
    {
        // The main screen, unless the window shows more on another.
        NSRect best = [[NSScreen mainScreen] frame];
        double most = 0.0;
        if (window != nullptr)
            for (NSScreen* screen in [NSScreen screens])
                if (const double shown = area(NSIntersectionRect([screen frame], frame_of(window))); shown > most)
                {
                    most = shown;
                    best = [screen frame];
                }
        width = static_cast<int>(best.size.width);
        height = static_cast<int>(best.size.height);
    }
}

std::string cutils_mac::get_common_directory()
{
    @autoreleasepool
    {
        NSString* const folder =
            [NSHomeDirectory() stringByAppendingPathComponent:@"Library/Application Support/Orvane"];
        // Succeeds if the folder exists.
        [[NSFileManager defaultManager] createDirectoryAtPath:folder
                                  withIntermediateDirectories:YES
                                                   attributes:nil
                                                        error:NULL];
        return utf8_of(folder);
    }
}

bool cutils_mac::list_dir(const std::string& path, std::vector<std::string>* files,
                          std::vector<std::string>* directories, bool full_paths)
{
    return list_folder(path, files, directories, full_paths);
}

double cutils_mac::get_dpi_scale() { return 1.0; }

std::string cutils_mac::get_resource_directory()
{
    @autoreleasepool
    {
        return utf8_of([[NSBundle mainBundle] resourcePath]);
    }
}

// On other systems this file is compiled for tests only, and the system's own utilities are used.
#if defined(__APPLE__)
std::unique_ptr<iutils> make_system_utils()
{
    return std::make_unique<cutils_mac>(vendor_suite_name, product_suite_name);
}
#endif

} // namespace ov1
