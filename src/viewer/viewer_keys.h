// The keys of the viewer: one row a key.
#pragma once

#include "console/key_codes.h"
#include "viewer/follow_mode.h"
#include "viewer/viewer.h"

// What the keys act on beside the viewer.
struct Viewing {
  CViewer& viewer;
  FollowMode follow;
  Key end = 0;  // the key that ends it, once there was one
  bool goesToEditor = false;
};

// False for a movement that had nowhere to go.
bool RunViewerKey(Viewing& viewing, Key key);
