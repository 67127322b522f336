// The small script that -x leaves for whatever started the program. The first
// character of the path and a colon stand where a drive stands in such a
// script, and the path goes on from its third character.
#include "shell/exit_script.h"

#include "foundation/code_pages.h"
#include "foundation/std_file.h"

Westring ExitScriptPath(const TPanel& panel) {
  if (!panel.archive) return panel.path;
  return Left(panel.path, RFind(panel.archive->Path(), L'/'));
}

void WriteExitScript(const Westring& file, const Westring& path) {
  StdFile script;
  if (script.Open(file, kOpenWrite | kOpenCreate) != 0) return;
  const Estring drive = Left(ToUtf8(path), 1);
  const Estring rest = ToSystem(Mid(path, 2));
  script.PutText((drive + ":\r\ncd \"" + rest + "\"\r\n").Text());
}
