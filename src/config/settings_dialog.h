// The Configuration dialog.
#pragma once

// True if the user accepted; otherwise all options are as they were. What
// follows from a change is the caller's.
bool SettingsDialog();
