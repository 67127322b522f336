// Order of a panel's listing: the ten sort keys and the name comparison.
// Permutes pointers only; entries never move. Start at SortEntries().
#pragma once

#include "panels/panel.h"

constexpr int kSortKeys = 10;
extern const char* const kSortNames[kSortKeys];

constexpr int kSortUnsorted = 4;

void SortEntries(TPanel& panel);
// By one key alone; used by SortEntries and by whoever holds a bare list.
void SortEntryList(entry** list, int count, int sortKey);
int CompareNames(const wchar_t* a, const wchar_t* b);

// Keeps the key in the panel and in its side's option, sorts, keeps the cursor
// on its file and redraws.
void SetSort(TPanel& panel, int key);
