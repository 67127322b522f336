// The walk to any directory: leaves the archives that the target is not in,
// then goes down component by component, into archives where files stand for
// directories.
#include <cwchar>
#include <vector>

#include "foundation/paths.h"
#include "panels/navigation.h"
#include "panels/panel_path.h"

namespace {

// The longest directory that holds both goal and path; empty if that is the
// root. Of a goal "//host/..." the host is never cut in two.
Westring CommonStem(const Westring& goal, const wchar_t* path) {
  Westring stem = goal;
  while (!stem.IsEmpty() && !IsPathInside(path, stem.Text())) stem = Left(stem, RFind(stem, L'/'));
  return Length(stem) > 1 || IsRootPath(goal.Text()) ? stem : Westring();
}

// The part of goal that goes one component further than its first done
// characters.
Westring NextStep(const Westring& goal, int done) {
  int end = done;
  while (goal[end] == L'/') ++end;
  while (goal[end] && goal[end] != L'/') ++end;
  return Left(goal, end);
}

class Walk {
 public:
  explicit Walk(TPanel& walker) : panel(walker) {}

  // Pops the levels that do not hold stem, and shortens stem to what is left of
  // it where an archive's file is gone.
  void LeaveArchives(Westring& stem) {
    while (panel.archive) {
      const Westring shown = panel.archive->Path();
      const bool inside = IsPathInside(stem.Text(), shown.Text());
      const bool exists = panel.archive->StillThere();
      if (inside && exists) break;
      if (inside) stem = ParentPath(shown.Text());
      if (exists) left.push_back(shown);
      Pop();
    }
    kept = panel.archive.get();
  }

  bool StepInto(const Westring& path) {
    if (panel.archive) {
      uint16_t attributes = 0;
      const wchar_t* const interior = path.Text() + Length(panel.archive->Path()) + 1;
      if (!panel.archive->Lookup(interior, attributes)) return false;
      if (attributes & kAttrDirectory) return true;
    } else if (DirectoryExists(path)) {
      return true;
    } else if (!FileExists(path)) {
      return false;
    }
    return PushArchive(path);
  }

  // Puts the panel back into the archives that it has left. Where one does not
  // open again, the panel goes to what holds it.
  void Undo() {
    while (panel.archive.get() != kept) Pop();
    for (; !left.empty(); left.pop_back()) {
      if (PushArchive(left.back())) continue;
      CopyText(panel.path, ParentPath(left.back().Text()).Text());
      panel.readPending = true;
      return;
    }
  }

 private:
  void Pop() { panel.archive = std::move(panel.archive->parent); }

  bool PushArchive(const Westring& path) {
    if (!OpenArchive) return false;
    std::unique_ptr<ArchiveLevel> level = OpenArchive(path, panel.archive.get());
    if (!level) return false;
    level->parent = std::move(panel.archive);
    panel.archive = std::move(level);
    return true;
  }

  TPanel& panel;
  std::vector<Westring> left;  // archives popped that can be opened again, the innermost first
  const ArchiveLevel* kept = nullptr;
};

}  // namespace

bool ChangeDirectory(TPanel& panel, const Westring& target) {
  Westring goal;
  if (!NormalisePath(target, panel.path, goal)) return false;
  Westring stem = CommonStem(goal, panel.path);
  Walk walk(panel);
  walk.LeaveArchives(stem);

  const int length = Length(goal);
  for (int done = Length(stem); done < length;) {
    const Westring step = NextStep(goal, done);
    if (!walk.StepInto(step)) {
      walk.Undo();
      return false;
    }
    done = Length(step);
  }
  CopyText(panel.path, goal.Text());
  return true;
}
