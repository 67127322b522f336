// The dialog for the filter of a panel.
#pragma once

// True if the user accepted a filter, which is then the panel's from its next
// read on; otherwise all is as it was.
bool FilterDialog(int side);
