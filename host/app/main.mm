// The application that contains the plug-in. Installing it installs the plug-in; opening it only shows a message.
#import <AppKit/AppKit.h>

int main()
{
    @autoreleasepool
    {
        [NSApplication sharedApplication];
        NSAlert* const alert = [[[NSAlert alloc] init] autorelease];
        [alert setMessageText:@"Veridial is installed."];
        [alert setInformativeText:@"You find it among the effects of Final Cut Pro and the filters of Motion."];
        [alert addButtonWithTitle:@"OK"];
        [alert runModal];
    }
    return 0;
}
