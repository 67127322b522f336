// The settings file: reading and writing.
#pragma once

#include "foundation/strings.h"

// What the settings need from the rooms above.
struct SettingsHooks {
  void (*applyScreenSize)(int rows, int columns) = nullptr;
  void (*collectPanelState)() = nullptr;  // copies the panels' state into the options
};
extern SettingsHooks TheSettingsHooks;

// Sets the defaults (unless reload), then reads the file. With reload only the
// association stores and the environment additions are taken anew.
void LoadSettings(bool reload);

// Writes a scratch file beside the old one, then puts it in its place. False if
// it was not written; the user has been told.
bool SaveSettings();

// One line; section is the number of the section in force, changed by a head.
void ReadSettingsLine(const char* line, int& section, bool reload);

constexpr int kSectionAssociations = 10;
constexpr int kSectionEnvironment = 15;
constexpr int kSectionGeneral = 16;

void SetDefaultOptions();
