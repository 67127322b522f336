// Texts of system errors; see file_error.h.
#include "fileops/file_error.h"

#include <cerrno>

#include "dialogs/prompt.h"
#include "foundation/paths.h"
#include "panels/entry_source.h"

namespace {

struct ErrorRow {
  int code;
  const wchar_t* text;
  bool aboutTarget;
  int kind;
};

// Another try is offered where the user can change what is in the way.
constexpr ErrorRow kErrors[] = {
    {ENOENT, L"File not found", false, kPromptOkCancel},
    {EIO, L"Error reading disk", false, kPromptRetrySkipCancel},
    {EACCES, L"Access Denied", false, kPromptRetrySkipCancel},
    {ENOTDIR, L"Path not found", true, kPromptOkCancel},
    {ENOSPC, L"No room for", false, kPromptRetrySkipCancel},
    {EROFS, L"Disk write protected, cannot write", false, kPromptRetrySkipCancel},
    {ENAMETOOLONG, L"Name too long", true, kPromptOkCancel},
    {kDriveNotReady, L"Drive not ready", false, kPromptRetrySkipCancel},
};

}  // namespace

FileErrorText DescribeFileError(int code) {
  for (const ErrorRow& row : kErrors)
    if (row.code == code) return {row.text, row.aboutTarget, row.kind};
  const Westring system(SystemError(code).Text());
  const Westring number(Estring::Format(" (%d)", code).Text());
  return {system + number, false, kPromptRetrySkipCancel};
}

void ShowFileError(FileOperation& operation, int& code, bool& stop, const Westring& source,
                   const Westring& target) {
  const FileErrorText error = DescribeFileError(code);
  const bool tellsTarget = error.aboutTarget && !target.IsEmpty();
  const int answer = operation.Ask(error.text, tellsTarget ? target : source, error.kind);
  if (answer == static_cast<int>(kEscape)) code = kStopCommand;
  stop = answer != 'r';
}

bool WantsRetry(FileOperation& operation, int& code, const Westring& source, const Westring& target) {
  bool stop = true;
  ShowFileError(operation, code, stop, source, target);
  return !stop;
}
