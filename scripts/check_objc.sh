#!/usr/bin/env bash
# Checks syntax and types of the bridge's Objective-C++ with the language runtime of macOS, against our own declarations
# of Apple's frameworks. Nothing is compiled to code or run.
set -euo pipefail
cd "$(dirname "$0")/.."
toolkit=$(ls -d build/deps/vstgui/4.* | tail -n 1)
objc=$(dirname "$(dirname "$(ls -d /usr/lib/gcc/*/*/include/objc/objc.h | head -n 1)")")

sources=$(ls host/fxplug/*.mm host/service/*.mm host/app/*.mm ov_source/platform/cocoa/*.mm ov_source/framework/view/cocoa/*.mm)
for source in $sources; do
  clang++-19 -fsyntax-only -std=c++20 -Wall -Wextra -Wpedantic -Werror -fobjc-runtime=macosx-12.0 -fobjc-exceptions \
    -DVERIDIAL_HAS_EDITOR=0 -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -D_NATIVE_OBJC_EXCEPTIONS -I. -Iov_source -Ihost/compat \
    -DNDEBUG=1 -DVSTGUI_ENABLE_DEPRECATED_METHODS=0 -isystem "$toolkit" -isystem /usr/include/GNUstep \
    -idirafter "$objc" -include host/compat/apple_additions.h "$source"
done
echo "check_objc: $(echo "$sources" | wc -l) files checked with the runtime of macOS"
