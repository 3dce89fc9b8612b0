// The one function of CoreFoundation that we call: the toolkit is initialised with the main bundle. Only declared, for
// the syntax check; nothing defines it on Linux.
#pragma once

typedef void* CFBundleRef;

extern "C" CFBundleRef CFBundleGetMainBundle(void);
