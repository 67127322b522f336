// How much memory is left.
#pragma once

#include <cstdint>

// Bytes that this process can still take before an allocation fails or the
// system ends it: what the system has left, within the process's own limit.
// The largest number where neither can be told. Reads two small files.
int64_t AvailableMemory();
