// From queued events to what readers of the keyboard and mouse get; the part of
// input.h that needs a queue and no console.
#pragma once

#include "console/event_queue.h"
#include "console/input.h"

// The key code of a key event. Control with a digit of the top row gets its
// code here.
Key KeyOfEvent(const TEvent& event);

// False if a mouse event means nothing to the program; mouse is then as it was.
bool TranslateMouse(const TEvent& event, TMouseEvent& mouse);

// Copies the next event out of the queue; false if none came in time, or one
// that is the rest of a click to be dropped.
bool TakeEvent(CEventQueue& queue, TEvent& event, uint32_t timeoutMs);

// ReadKey() and CheckEscape() on a given queue.
Key ReadKeyFrom(CEventQueue& queue, bool& timedOut, TMouseEvent* mouse, int timeoutMs);
bool CheckEscapeIn(CEventQueue& queue);
