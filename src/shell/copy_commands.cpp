// Copying and moving between the panels. What is in an archive, or goes into one,
// is not for the file operations.
#include "shell/copy_commands.h"

#include "fileops/copy_command.h"
#include "shell/history_dialogs.h"

namespace {

int Run(int flags) {
  TPanel& source = ActivePanel();
  TPanel& other = OtherPanel();
  const bool intoArchive = other.IsVisibleFiles() && other.archive && !(flags & kCommandHere);
  if (!source.archive && !intoArchive)
    CopyOrMove(source, other, flags, nullptr);
  else if (TheCopyHooks.throughArchive)
    TheCopyHooks.throughArchive(source, other, flags & kCommandMove);
  return kRedrawAll;
}

}  // namespace

int RunCopy(Shell&) { return Run(0); }
int RunMove(Shell&) { return Run(kCommandMove); }
int RunCopyHere(Shell&) { return Run(kCommandHere); }
int RunMoveHere(Shell&) { return Run(kCommandMove | kCommandHere); }

bool ChooseFromDirectoryHistory(Westring& path) {
  DirectoryHistoryDialog(path);
  return !path.IsEmpty();
}
