// Ejecting a medium by way of the desktop's services.
#pragma once

#include <cstdint>

#include "foundation/strings.h"

enum class EjectResult { Ejected, Failed, TimedOut };

// Ejects what is mounted at mountPoint and waits at most patienceMs for it. On
// failure error is the desktop's text.
EjectResult EjectMount(const Westring& mountPoint, uint32_t patienceMs, Westring& error);
