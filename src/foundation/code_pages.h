// Text in numbered code pages, by way of iconv; nothing is cached.
#pragma once

#include "foundation/strings.h"

// The page of all 8-bit text that has no page of its own. 850 at start.
extern unsigned short DefaultCodePage;

// iconv's name for a page: "KOI8-R" for 878 and 20866, "ISO-8859-1" for 819,
// "CP%d" for the rest.
Estring CodePageName(int page);

// One byte an element; cut where the page lacks a character. The empty string
// for a page that iconv does not know.
Estring EncodeCodePage(const Westring& text, int page);

// One element a byte; a byte that the page leaves undefined becomes U+2302.
// True if no byte was replaced; false with target untouched for an unknown page.
bool DecodeCodePage(const char* bytes, int page, Westring& target);

// The Westring forms; ToSystem and FromSystem use DefaultCodePage.
Estring ToCodePage(const Westring& text, int page);
Estring ToSystem(const Westring& text);
Westring FromSystem(const char* bytes);

// Upper and lower case of every byte in the C locale in force; rebuilt after
// the locale has been set. CaseTablesReady tells that they have been built.
extern unsigned char UpperTable[256];
extern unsigned char LowerTable[256];
extern bool CaseTablesReady;
void BuildCaseTables();

// How a text file's encoding is shown: modes 0, 1 "UTF-32"; 2, 3 "UTF-16";
// 4 "UTF-8"; 5 "CP%d" of page; the empty string for all others.
Estring EncodingName(int mode, int page);
