// Guessing the encoding of a text by its first 32 KB.
#pragma once

#include "viewer/block_file.h"

struct DetectedMark {
  int encoding;  // kUnknownEncoding for no mark
  int length;    // bytes
};
DetectedMark FindMark(CBlockFile& file);

// By the bytes alone; never kUnknownEncoding.
int GuessEncoding(CBlockFile& file);
