// The fields of an entry beside its name, as text of a given width.
#pragma once

#include "foundation/strings.h"
#include "panels/entry.h"

// What the size column shows, right-justified in width. Plain digits may be
// longer than a width of ten or more, in which every size is whole.
Westring SizeText(const entry& e, int width);

// Local time in the locale's order and separator; blanks for no date.
Westring DateText(const FileTime& time, int width);
Westring TimeText(const FileTime& time, int width);

Westring PermissionText(uint16_t mode);

// Names of the account and the group, or their numbers, cut to width.
Westring OwnerText(const entry& e, int width);
Westring GroupText(const entry& e, int width);
