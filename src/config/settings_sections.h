// What reader and writer of the settings file share: the sections in their
// order, and the keys of an archiver.
#pragma once

#include "config/settings_file.h"
#include "config/values/archivers.h"
#include "config/values/associations.h"

constexpr int kSectionCount = kSectionGeneral + 1;

// The first kArchiverCount are those of the archivers, in their order.
extern const char* const kSectionHeads[kSectionCount];

// The stores of the sections from kSectionAssociations on.
constexpr int kAssociationStoreCount = 5;
extern AssociationSet* const kAssociationStores[kAssociationStoreCount];

struct ArchiverKey {
  const char* name;
  Estring ArchiverRecord::*field;
};

// In the order of writing.
constexpr int kArchiverKeyCount = 7;
extern const ArchiverKey kArchiverKeys[kArchiverKeyCount];

// The longest line in bytes, without its end. The reader drops what is behind
// it, the writer cuts there.
constexpr int kLongestSettingsLine = 4095;

// Takes the stores, the environment and the archivers from the file, without
// reload all the rest, too. False if there is a file that could not be read:
// its stores must then not be written back. The user has been told.
bool ReadSettings(bool reload);

// Tells the user of a system error.
void ShowSettingsError(const Westring& path, int code);
