// The options: one global each, named after its key in the settings file.
// They are the program's one configuration; only the application thread
// touches them. Defaults are set and values read in config/.
#pragma once

#include <cstdint>

#include "foundation/strings.h"

namespace Options {

extern bool AutoIndent;  // a new line in the editor starts under the text of the one above
extern bool AutoSave;  // save the settings at exit
extern Westring Background;  // template of a command run apart; "!" is the command
extern bool BriefWordRight;  // Ctrl-Right goes to the end of the next word, otherwise to its start
extern Westring CaseFilter;  // file system types whose names show directories upper, files lower case
extern Estring CaseMod;  // what the case dialog did last: name and extension
extern bool CaseModRecurse;  // the case dialog descends
extern bool CaseModDirs;  // the case dialog changes directories
extern bool CaseModFiles;  // the case dialog changes files
extern bool Clock;  // show the clock
extern char CmdChar;  // the macro character of commands
extern bool CMPContents;  // directory compare reads the files
extern Westring CMPMask;  // directory compare's mask
extern int CMPSize;  // directory compare's size test
extern int CMPTime;  // directory compare's time test
extern bool CMPUnmatched;  // directory compare tags what the other side lacks
extern int CodePage;  // page of 8-bit text; 0 means 850
extern int Confirmations;  // bits 0 to 4 set: that question is not asked
extern bool ConsoleScrollback;  // keep rows that scroll off
extern bool CtrlRDriveChng;  // Ctrl-R opens the drive dialog
extern bool DisableInvert;  // Grey * is a plain character
extern Westring Editor;  // editor command; empty means the internal one
extern Westring Editor2;  // alternate editor command
extern bool EscPanelSwitch;  // Esc on an empty line switches the panels
extern bool ExpandedTrees;  // trees open unfolded
extern bool FFRootSearch;  // file find starts at the root
extern bool FFRecurse;  // file find descends
extern bool FFCase;  // file find minds case
extern bool FFWholeWord;  // file find wants whole words
extern bool FFMultiDrive;  // file find goes over several drives
extern Estring FFDriveList;  // those drives
extern Estring FontFamily;
extern int FontSize;  // points
extern bool FullScreen;  // panels fill the screen, otherwise half of it
extern bool Hidden;  // show hidden entries
extern int IndentWidth;  // editor
extern bool KeepExtVisible;  // a long name is cut in front of its extension
extern Westring Left;  // start directory; empty means the current one
extern Westring Right;
extern Westring LeftFilter;
extern Westring RightFilter;
extern int LeftSort;  // index of the sort table
extern int RightSort;
extern int LeftStyle;  // 0 brief, 1 full, 2 wide, 3 briefwide, 4 unix, 5 tree
extern int RightStyle;
extern bool LeftShowing;
extern bool RightShowing;
extern int LeftType;  // 0 files, 1 info
extern int RightType;
extern int Lines;  // 0 keeps the size
extern int Columns;
extern int MaxHist;  // commands kept
extern int MouSpeed;
extern bool NumLock;
extern bool OverStrike;
extern Westring PathAppend;  // added to PATH for commands
extern bool PathPrompt;  // the prompt shows the path
extern bool PMClip;  // use the desktop's clipboard
extern bool RetainCount;  // directories show their counted sizes
extern int Saver;
extern int ScrollDelay;  // milliseconds between steps of an automatic scroll
extern bool Shadows;  // windows throw shadows
extern bool SizeCountPause;
extern char StartupSide;  // 'L' or 'R'
extern bool StickyAlt;  // quick search goes on without Alt
extern int TabWidth;  // 1 to 8
extern bool TagDirs;  // tagging by mask takes directories too
extern int TextCodePage;  // page of viewer and editor; 0 means 819
extern int TimeMode;  // 12 or 24
extern bool ThousandSep;  // sizes with separators
extern Estring TranslateCP;
extern Westring TreeDir;  // directory of the tree data
extern Westring Viewer;  // viewer command; empty means the internal one
extern Westring Viewer2;  // alternate viewer command
extern bool ViewerWrap;
extern bool WaitDOS;

}  // namespace Options

constexpr int kStoredDirectories = 10;
extern Westring StoredDirectories[kStoredDirectories];  // d0 to d9; empty ones are not written

extern Westring ProgramPath;      // argv[0], absolute; names the settings files
extern Westring IniFileArgument;  // the settings file of the command line, absolute, or empty

// The page of a new viewer or editor: TextCodePage, or Latin-1 where that is 0,
// and not the page of all other 8-bit text.
uint16_t TextPage();

// One row of the table that joins keys and globals; its order is the order of
// writing.
enum class OptionType { Bytes, Wide, Integer, OnOff, Character, TimeModeName, SortName, StyleName, TypeName, ColourList };

struct OptionRow {
  const char* key;
  OptionType type;
  void* store;              // null: known, but neither kept nor written
  const char* defaultText;  // in the form of the file
};

extern const OptionRow kOptionTable[];
extern const int kOptionCount;
