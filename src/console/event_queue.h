// Input events on their way from the GUI thread to the application thread.
#pragma once

#include <cstdint>
#include <vector>

#include "foundation/collections.h"
#include "foundation/sync.h"

enum EventType : int32_t {
  kEventKey = 0,
  kEventPress = 1,
  kEventRelease = 2,
  kEventMotion = 3,
  kEventDoubleClick = 4,
  kEventWheel = 5,
};

struct TEvent {
  int32_t type = 0;
  int32_t code = 0;       // key code; button 1 left, 2 right, 3 other, 0 none; wheel +1, -1
  int32_t modifiers = 0;  // Modifier bits
  int32_t keycode = 0;    // hardware key code; 0 for text of the input method
  int32_t x = 0, y = 0;   // cell of a mouse event
};

class CEventQueue : public TObjectStore<TEvent> {
 public:
  // From the GUI thread; the queue owns the event from here.
  void Put(TEvent* event);
  // From the application thread: the next event, now the caller's, or null
  // after timeoutMs without one. 0 polls, kForever waits.
  TEvent* Get(uint32_t timeoutMs);
  // Takes every event up to and including the first press of Escape, if one is
  // waiting; other events stay. Lets long work be cancelled without losing
  // what was typed ahead.
  bool TakeEscape();
  // From here the drags and the release of a left button that is down mean
  // nothing: what its press or double click brought about must not be clicked
  // by them. To be asked about each event that has been taken, once.
  void DropRestOfClick();
  bool IsRestOfClick(const TEvent& event);
  bool IsPending();

  // For whoever drives the program.
  // All of them are there before the first one is taken.
  void Put(const std::vector<TEvent>& events);
  // True once the application waits here and nothing is queued: all input has
  // been acted on. False after timeoutMs.
  bool WaitUntilDrained(uint32_t timeoutMs);

 private:
  TEvent* Take();
  void BeginWait();
  void EndWait();

  Mutex mutex;  // guards the store, readerWaits and the setting of drained
  Event arrived;
  Event drained;  // set while a reader waits and nothing is queued
  bool readerWaits = false;
  bool dropsClick = false;  // the application thread's
};
