// The settings file: reading and writing.
#pragma once

#include "dialogs/prompt.h"
#include "foundation/strings.h"

// What the settings need from the rooms above, and how they ask the user.
struct SettingsHooks {
  int (*ask)(const Westring& text, const Westring& detail, int flags) = Prompt;
  void (*applyScreenSize)(int rows, int columns) = nullptr;
  void (*collectPanelState)() = nullptr;  // copies the panels' state into the options
};
extern SettingsHooks TheSettingsHooks;

// Sets the defaults (unless reload), then reads the file. With reload only the
// association stores, the environment additions and the archivers are taken
// anew. The user is told of each bad line; Esc spares him the rest of them.
void LoadSettings(bool reload);

// Reloads what the user may have edited in the file, writes a scratch file
// beside the old one, then puts it in its place. False if it was not written;
// the user has been told, and the old file is whole.
bool SaveSettings();

// One line; section is the number of the section in force, changed by a head.
void ReadSettingsLine(const char* line, int& section, bool reload);

constexpr int kSectionAssociations = 10;
constexpr int kSectionEnvironment = 15;
constexpr int kSectionGeneral = 16;

void SetDefaultOptions();
