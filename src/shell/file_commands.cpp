// Commands on the user's files; the work is done in fileops.
#include "shell/file_commands.h"

#include "fileops/delete_command.h"
#include "fileops/make_directory.h"

int RunMakeDirectory(Shell&) {
  MakeDirectory(static_cast<int>(ActiveSide));
  return kRedrawAll;
}

int RunDelete(Shell&) {
  DeleteCommand(ActivePanel());
  return kRedrawAll;
}

int RunDeleteNamed(Shell&) {
  DeleteNamedFile(ActivePanel());
  return kRedrawAll;
}
