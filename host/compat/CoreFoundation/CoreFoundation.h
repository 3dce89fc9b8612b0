// The one thing of CoreFoundation that is used: the bundle that the toolkit is started with. For reading alone; nothing
// defines it here.
#pragma once

typedef void* CFBundleRef;

extern "C" CFBundleRef CFBundleGetMainBundle(void);
