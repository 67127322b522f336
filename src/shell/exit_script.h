// The small script that -x leaves for whatever started the program.
#pragma once

#include "panels/panel.h"

// The panel's path; in an archive the directory that holds it.
Westring ExitScriptPath(const TPanel& panel);
void WriteExitScript(const Westring& file, const Westring& path);
