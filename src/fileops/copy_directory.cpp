// The copy of a directory with all it holds: each object in it is an item of its
// own, with all that may be asked about one.
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <cwchar>

#include "dialogs/prompt.h"
#include "fileops/copy_item.h"
#include "fileops/copy_job.h"
#include "fileops/delete_file.h"
#include "fileops/directory_names.h"
#include "fileops/item_policy.h"
#include "fileops/target_inside.h"
#include "foundation/paths.h"

namespace {

bool NormaliseHere(const Westring& path, Westring& result) {
  const bool absolute = path[0] == L'/';
  return NormalisePath(path, absolute ? Westring() : CurrentDirectory(), result, kLongestPath);
}

// True where the components of outer are the first ones of path.
bool BeginsWithPath(const Westring& path, const Westring& outer) {
  const Westring start = AddTrailingSlash(outer);
  return wcsncmp(AddTrailingSlash(path).Text(), start.Text(), wcslen(start.Text())) == 0;
}

int AskForMerge(CopyJob& job) {
  const int answer = job.operation.Ask(L"Directory already exists, merge with source?", job.targetPath,
                                       kPromptOkCancelSkipAllNone);
  if (answer == kEscape) return kStopCommand;
  if (answer == 'a') job.operation.mergeAll = true;
  return answer == 'y' || answer == 'a' ? 0 : kSkipped;
}

int MakeTarget(CopyJob& job) {
  if (mkdir(job.target.Text(), job.status.st_mode & 07777) == 0) {
    CopyDescription(job.sources, job.sourcePath, job.targetPath);
    return 0;
  }
  const int code = errno;
  struct stat existing;
  if (stat(job.target.Text(), &existing) != 0) return code;
  if (!S_ISDIR(existing.st_mode)) return EEXIST;
  const bool isFull = RFind(job.sourcePath, L'/') >= 0;
  return isFull || job.operation.mergeAll ? 0 : AskForMerge(job);
}

int CopyName(CopyJob& job, const DirectoryNames& names, const char* name, Descriptions& descriptions) {
  struct stat status;
  if (!names.Look(name, status)) return 0;
  Westring text;
  if (!DecodeName(name, text)) return RefuseName(job.operation, names, name, JoinPath(job.sourcePath, text));
  if (IsDescriptionsName(name)) return 0;  // its lines go with their files
  const Westring sourcePath = JoinPath(job.sourcePath, text);
  const bool lowers = job.operation.caseFilterOn && !names.LooksLikeDirectory(name);
  const Westring targetPath = JoinPath(job.targetPath, lowers ? Lower(text) : text);
  const auto copy = job.isMove ? MoveItem : CopyItem;
  return copy(job.operation, sourcePath, targetPath, 1, 1, &descriptions);
}

int CopyNames(CopyJob& job, DirectoryNames& names) {
  Descriptions descriptions;
  descriptions.Open(job.sourcePath, job.isMove, false);
  bool failed = false;
  while (const char* name = names.Next()) {
    if (job.cancel.Stopped()) return kStopCommand;
    const int code = CopyName(job, names, name, descriptions);
    if (code < 0) return code;
    if (code > 0) failed = true;
  }
  return failed ? kSkipped : 0;
}

bool IsDescriptionsFile(const DirectoryNames& names, const char* name) {
  struct stat status;
  return IsDescriptionsName(name) && names.Look(name, status) && S_ISREG(status.st_mode);
}

// What came into the directory since its names were read has not been copied, nor
// has what only has the name of the descriptions.
int RemoveMoved(CopyJob& job, DirectoryNames& names) {
  if (const int code = names.Read(job.sourcePath)) return code;
  while (const char* name = names.Next())
    if (!IsDescriptionsFile(names, name)) return ENOTEMPTY;
  const int result = DeleteDirectory(job.operation, job.sourcePath);
  if (result < 0) return kStopCommand;
  return result > 0 ? 0 : kSkipped;
}

}  // namespace

int CopyDirectory(CopyJob& job) {
  Westring source, target;
  if (!NormaliseHere(job.sourcePath, source) || !NormaliseHere(job.targetPath, target)) {
    job.operation.Ask(L"Invalid Path", source.IsEmpty() ? job.sourcePath : job.targetPath, kPromptOk);
    return kStopCommand;
  }
  if (BeginsWithPath(target, source) || IsTargetInside(job.targetPath, job.status)) {
    job.operation.Ask(L"Directory cannot be copied into itself", job.sourcePath, kPromptOk);
    return kStopCommand;
  }
  DirectoryNames names;
  if (const int code = names.Read(job.sourcePath)) return code;
  if (const int code = MakeTarget(job)) return code;
  if (const int code = CopyNames(job, names)) return code;
  return job.isMove ? RemoveMoved(job, names) : 0;
}
