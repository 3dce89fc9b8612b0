// The part of CoreMedia that the bridge uses.
#pragma once

#include <CoreMedia/CMTime.h>
