// The part of CoreMedia that the bridge knows.
#pragma once

#include <CoreMedia/CMTime.h>
