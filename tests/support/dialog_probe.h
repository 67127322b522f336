// A dialog of a test, with elements that note what happens to them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "dialogs/dialog.h"
#include "support/console_fixture.h"

using Log = std::vector<std::string>;

// An element that notes what happens to it: in its log "in 2" and "out 2" for
// the focus of element 2, "commit 2", "gone 2".
class Probe : public DialogElement {
 public:
  Probe(Dialog& dialog, bool startGroup, Log* log = nullptr)
      : DialogElement(dialog, dialog.Count(), 2, dialog.Count(), startGroup), log(log) {}
  ~Probe() override { Note("gone"); }

  int HandleEvent(const DialogEvent& event) override {
    events.push_back(event);
    return uses ? 1 : 0;
  }
  void Activate() override {
    ++activations;
    DialogElement::Activate();
  }
  void FocusChanged(bool hasFocus) override { Note(hasFocus ? "in" : "out"); }
  ElementType TypeId() const override { return kTypeStringField; }
  void Draw() override { ++draws; }
  void Commit() override { Note("commit"); }

  bool uses = false;
  int activations = 0, draws = 0;
  std::vector<DialogEvent> events;

 private:
  void Note(const char* what) {
    if (log != nullptr) log->push_back(std::string(what) + " " + std::to_string(index));
  }

  Log* log;
};

// 40 by 10 cells at (20, 5); its inside starts at (21, 6).
class DialogTest : public ConsoleFixture {
 protected:
  static constexpr uint8_t kColour = 0x70;

  DialogTest() : dialog(std::make_unique<Dialog>(-1, -3, 40, 10, kColour)) {}

  Probe* AddProbe(bool startGroup) {
    auto* probe = new Probe(*dialog, startGroup, &log);
    dialog->Add(probe);
    return probe;
  }

  Log log;
  std::unique_ptr<Dialog> dialog;
};
