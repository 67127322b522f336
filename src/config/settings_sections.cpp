// The tables of the settings file's format.
#include "config/settings_sections.h"

const char* const kSectionHeads[kSectionCount] = {
    "[Archiver:ZIP]",        "[Archiver:RAR]",   "[Archiver:LHARC]",    "[Archiver:ARJ]",
    "[Archiver:ACE]",        "[Archiver:HA]",    "[Archiver:GZIP]",     "[Archiver:TAR]",
    "[Archiver:7ZIP]",       "[Archiver:BZIP2]", "[Associations]",      "[Viewer Associations]",
    "[Editor Associations]", "[Colours]",        "[Directory Colours]", "[Environment]",
    "[General Options]",
};

AssociationSet* const kAssociationStores[kAssociationStoreCount] = {
    &Associations, &ViewerAssociations, &EditorAssociations, &FileColours, &DirectoryColours,
};

const ArchiverKey kArchiverKeys[kArchiverKeyCount] = {
    {"Compress", &ArchiverRecord::compress},
    {"CompressListfileSwitch", &ArchiverRecord::compressListfileSwitch},
    {"Extract", &ArchiverRecord::extract},
    {"ExtractListfileSwitch", &ArchiverRecord::extractListfileSwitch},
    {"Delete", &ArchiverRecord::deleteCommand},
    {"CompressDirSpec", &ArchiverRecord::compressDirSpec},
    {"ExtractDirSpec", &ArchiverRecord::extractDirSpec},
};

static_assert(kSectionAssociations == kArchiverCount);
static_assert(kSectionEnvironment == kSectionAssociations + kAssociationStoreCount);
