// What is searched for and how; see search_settings.h.
#include "viewer/search_settings.h"

Westring SearchString;
bool CaseSensitive = false;
bool Reverse = false;
bool WholeWord = false;
