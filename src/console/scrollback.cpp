// The one store of rows that scrolled off.
#include "console/scrollback.h"

CScrollBackBuffer ScrollBack;
