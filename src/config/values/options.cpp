// The options and the table that joins their globals to the keys of the file.
#include "config/values/options.h"

#include <iterator>

#include "config/values/colours.h"

namespace Options {

bool AutoIndent{};
bool AutoSave{};
Westring Background;
bool BriefWordRight{};
Westring CaseFilter;
Estring CaseMod;
bool CaseModRecurse{};
bool CaseModDirs{};
bool CaseModFiles{};
bool Clock{};
char CmdChar{};
bool CMPContents{};
Westring CMPMask;
int CMPSize{};
int CMPTime{};
bool CMPUnmatched{};
int CodePage{};
int Confirmations{};
bool ConsoleScrollback{};
bool CtrlRDriveChng{};
bool DisableInvert{};
Westring Editor;
Westring Editor2;
bool EscPanelSwitch{};
bool ExpandedTrees{};
bool FFRootSearch{};
bool FFRecurse{};
bool FFCase{};
bool FFWholeWord{};
bool FFMultiDrive{};
Estring FFDriveList;
Estring FontFamily;
int FontSize{};
bool FullScreen{};
bool Hidden{};
int IndentWidth{};
bool KeepExtVisible{};
Westring Left;
Westring Right;
Westring LeftFilter;
Westring RightFilter;
int LeftSort{};
int RightSort{};
int LeftStyle{};
int RightStyle{};
bool LeftShowing{};
bool RightShowing{};
int LeftType{};
int RightType{};
int Lines{};
int Columns{};
int MaxHist{};
int MouSpeed{};
bool NumLock{};
bool OverStrike{};
Westring PathAppend;
bool PathPrompt{};
bool PMClip{};
bool RetainCount{};
int Saver{};
int ScrollDelay{};
bool Shadows{};
bool SizeCountPause{};
char StartupSide{};
bool StickyAlt{};
int TabWidth{};
bool TagDirs{};
int TextCodePage{};
int TimeMode{};
bool ThousandSep{};
Estring TranslateCP;
Westring TreeDir;
Westring Viewer;
Westring Viewer2;
bool ViewerWrap{};
bool WaitDOS{};

}  // namespace Options

Westring StoredDirectories[kStoredDirectories];
Westring ProgramPath;
Westring IniFileArgument;

uint16_t TextPage() {
  constexpr int kLatinOne = 819;
  return static_cast<uint16_t>(Options::TextCodePage != 0 ? Options::TextCodePage : kLatinOne);
}

const OptionRow kOptionTable[] = {
    {"AutoIndent", OptionType::OnOff, &Options::AutoIndent, "off"},
    {"AutoSave", OptionType::OnOff, &Options::AutoSave, "off"},
    {"Background", OptionType::Wide, &Options::Background, "gnome-terminal -x ! &"},
    {"BriefWordRight", OptionType::OnOff, &Options::BriefWordRight, "on"},
    {"CaseFilter", OptionType::Wide, &Options::CaseFilter, ""},
    {"CaseMod", OptionType::Bytes, &Options::CaseMod, "ll"},
    {"CaseModRecurse", OptionType::OnOff, &Options::CaseModRecurse, "off"},
    {"CaseModDirs", OptionType::OnOff, &Options::CaseModDirs, "on"},
    {"CaseModFiles", OptionType::OnOff, &Options::CaseModFiles, "on"},
    {"Clock", OptionType::OnOff, &Options::Clock, "off"},
    {"CmdChar", OptionType::Character, &Options::CmdChar, "!"},
    {"CMPContents", OptionType::OnOff, &Options::CMPContents, "off"},
    {"CMPMask", OptionType::Wide, &Options::CMPMask, "*"},
    {"CMPSize", OptionType::Integer, &Options::CMPSize, "0"},
    {"CMPTime", OptionType::Integer, &Options::CMPTime, "1"},
    {"CMPUnmatched", OptionType::OnOff, &Options::CMPUnmatched, "on"},
    {"CodePage", OptionType::Integer, &Options::CodePage, "0"},
    {"Confirmations", OptionType::Integer, &Options::Confirmations, "0"},
    {"ConsoleScrollback", OptionType::OnOff, &Options::ConsoleScrollback, "on"},
    {"CtrlRDriveChng", OptionType::OnOff, &Options::CtrlRDriveChng, "off"},
    {"DisableInvert", OptionType::OnOff, &Options::DisableInvert, "off"},
    {"Editor", OptionType::Wide, &Options::Editor, ""},
    {"Editor2", OptionType::Wide, &Options::Editor2, "editor"},
    {"EscPanelSwitch", OptionType::OnOff, &Options::EscPanelSwitch, "off"},
    {"ExpandedTrees", OptionType::OnOff, &Options::ExpandedTrees, "on"},
    {"FFRootSearch", OptionType::OnOff, &Options::FFRootSearch, "on"},
    {"FFRecurse", OptionType::OnOff, &Options::FFRecurse, "on"},
    {"FFCase", OptionType::OnOff, &Options::FFCase, "off"},
    {"FFWholeWord", OptionType::OnOff, &Options::FFWholeWord, "off"},
    {"FFMultiDrive", OptionType::OnOff, &Options::FFMultiDrive, "off"},
    {"FFDriveList", OptionType::Bytes, &Options::FFDriveList, ""},
    {"FontFamily", OptionType::Bytes, &Options::FontFamily, "DejaVu Sans Mono"},
    {"FontSize", OptionType::Integer, &Options::FontSize, "12"},
    {"FullScreen", OptionType::OnOff, &Options::FullScreen, "on"},
    {"Manual", OptionType::Bytes, nullptr, ""},
    {"Hidden", OptionType::OnOff, &Options::Hidden, "off"},
    {"IndentWidth", OptionType::Integer, &Options::IndentWidth, "1"},
    {"KeepExtVisible", OptionType::OnOff, &Options::KeepExtVisible, "on"},
    {"Left", OptionType::Wide, &Options::Left, ""},
    {"Right", OptionType::Wide, &Options::Right, ""},
    {"LeftFilter", OptionType::Wide, &Options::LeftFilter, "*"},
    {"RightFilter", OptionType::Wide, &Options::RightFilter, "*"},
    {"LeftSort", OptionType::SortName, &Options::LeftSort, "name"},
    {"RightSort", OptionType::SortName, &Options::RightSort, "name"},
    {"LeftStyle", OptionType::StyleName, &Options::LeftStyle, "full"},
    {"RightStyle", OptionType::StyleName, &Options::RightStyle, "full"},
    {"LeftShowing", OptionType::OnOff, &Options::LeftShowing, "on"},
    {"RightShowing", OptionType::OnOff, &Options::RightShowing, "on"},
    {"LeftType", OptionType::TypeName, &Options::LeftType, "files"},
    {"RightType", OptionType::TypeName, &Options::RightType, "files"},
    {"Lines", OptionType::Integer, &Options::Lines, "0"},
    {"Columns", OptionType::Integer, &Options::Columns, "0"},
    {"MaxHist", OptionType::Integer, &Options::MaxHist, "500"},
    {"MouSpeed", OptionType::Integer, &Options::MouSpeed, "8"},
    {"NumLock", OptionType::OnOff, &Options::NumLock, "off"},
    {"OverStrike", OptionType::OnOff, &Options::OverStrike, "off"},
    {"PathAppend", OptionType::Wide, &Options::PathAppend, ""},
    {"PathPrompt", OptionType::OnOff, &Options::PathPrompt, "on"},
    {"PMClip", OptionType::OnOff, &Options::PMClip, "on"},
    {"RetainCount", OptionType::OnOff, &Options::RetainCount, "off"},
    {"Saver", OptionType::Integer, &Options::Saver, "0"},
    {"ScrollDelay", OptionType::Integer, &Options::ScrollDelay, "10"},
    {"Shadows", OptionType::OnOff, &Options::Shadows, "on"},
    {"SizeCountPause", OptionType::OnOff, &Options::SizeCountPause, "off"},
    {"StartupSide", OptionType::Character, &Options::StartupSide, "L"},
    {"StickyAlt", OptionType::OnOff, &Options::StickyAlt, "on"},
    {"TabWidth", OptionType::Integer, &Options::TabWidth, "8"},
    {"TagDirs", OptionType::OnOff, &Options::TagDirs, "off"},
    {"TextCodePage", OptionType::Integer, &Options::TextCodePage, "0"},
    {"TimeMode", OptionType::TimeModeName, &Options::TimeMode, "12"},
    {"ThousandSep", OptionType::OnOff, &Options::ThousandSep, "off"},
    {"TranslateCP", OptionType::Bytes, &Options::TranslateCP, ""},
    {"TreeDir", OptionType::Wide, &Options::TreeDir, ""},
    {"Use132", OptionType::OnOff, nullptr, ""},
    {"Viewer", OptionType::Wide, &Options::Viewer, ""},
    {"Viewer2", OptionType::Wide, &Options::Viewer2, "pager"},
    {"ViewerWrap", OptionType::OnOff, &Options::ViewerWrap, "on"},
    {"WaitDOS", OptionType::OnOff, &Options::WaitDOS, "off"},
    {"Colours", OptionType::ColourList, Options::Colours, "27 48 30 62 26 32 7 112 79 48 3 63 48 15 14 7 27 48"},
};
const int kOptionCount = static_cast<int>(std::size(kOptionTable));
