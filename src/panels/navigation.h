// How a panel goes from one directory to another.
#pragma once

#include "foundation/collections.h"
#include "panels/panel.h"

// One step: name "" re-reads, ".." goes up, anything else goes down. A top of
// -1 leaves the position as it comes. A path that would be too long for the
// panel is told, and the panel stays.
void Enter(int side, const wchar_t* name, bool keepTags, int top, int cursor);

void GoUp(TPanel& panel);

// Walks to target, through archives where need be, without reading; the caller
// enters. False, with the panel where it was, if there is no such directory.
bool ChangeDirectory(TPanel& panel, const Westring& target);

void ActivateSide(int side);
// At the start: the next call of it changes the side, whatever was active before.
void ForgetActiveSide();

// lastPath becomes path, and the process's current directory goes with the
// active panel.
void FollowPath(TPanel& panel);

// A message with the system's text and number for error, and the path.
void ShowPathError(int error, const Westring& path);

// The directory of the file system that holds the panel's path: the path
// itself, or the one that holds the outermost archive.
Westring RealDirectory(const TPanel& panel);

// Directories left, the newest last, each once, at most 100.
constexpr int kMaxDirectoryHistory = 100;
extern WestringStore DirectoryHistory;
// Puts path at the end, dropping an equal one, and the oldest over the limit.
void AddDirectoryHistory(const Westring& path);

// The window's title: "Orvane V2.40-dev" for null, empty for an empty text,
// otherwise "Orvane: " and the text.
void SetAppTitle(const wchar_t* text);

// The same with the path of the active panel, cut to 50 characters.
void ShowPathInAppTitle();
