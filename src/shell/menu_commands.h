// Commands of the pull-down menus that are no keys.
#pragma once

#include "console/key_codes.h"

enum MenuCommand : Key {
  kMenuLeftInfo = 0x100000,
  kMenuLeftName = 0x100001,  // to 0x100005 Unsorted
  kMenuLeftReverse = 0x100006,
  kMenuRightName = 0x100007,  // to 0x10000B Unsorted
  kMenuRightReverse = 0x10000C,
  kMenuLeftBrief = 0x10000D,
  kMenuRightBrief = 0x10000E,
  kMenuLeftFull = 0x10000F,
  kMenuRightFull = 0x100010,
  kMenuLeftFilter = 0x100012,
  kMenuLeftReRead = 0x100013,
  kMenuLeftWide = 0x100014,
  kMenuRightWide = 0x100015,
  kMenuLeftTree = 0x100016,
  kMenuRightTree = 0x100017,
  kMenuLeftBriefWide = 0x100018,
  kMenuRightBriefWide = 0x100019,
  kMenuLeftUnix = 0x10001A,
  kMenuRightUnix = 0x10001B,
  kMenuSelectGroup = 0x10006D,
  kMenuUnselectGroup = 0x10006E,
  kMenuInvert = 0x10006F,
  kMenuFileDate = 0x100071,
  kMenuRestoreSelection = 0x100072,
  kMenuEditAssociations = 0x1000D0,
  kMenuEditUserMenu = 0x1000D1,
  kMenuConfiguration = 0x10012C,
  kMenuColours = 0x10012D,
  kMenuHidden = 0x10012E,
  kMenuPathPrompt = 0x10012F,
  kMenuFullScreen = 0x100131,
  kMenuClock = 0x100132,
  kMenuTagDirs = 0x100133,
  kMenuSaveSetup = 0x100134,
  kMenuConfirmations = 0x100135,
  kMenuThousandSep = 0x100136,
  kMenuRetainCount = 0x100137,
  kMenuRightInfo = 0x100193,
  kMenuRightReRead = 0x10019B,
  kMenuRightFilter = 0x10019C,
};
