// Files of settings in sections, and units in the same form.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, SettingsTellKeysFromValues) {
  EXPECT_TRUE(Coloured("a.ini", R"(
; c
ccc
# c
ccc
[section]
HHHHHHHHH
key = a=b #1 ; c
    ossssssscccc
"quoted key" = "a ; b" 12 true
ssssssssssss osssssssssnnsCCCC
path: %(base)s/${HOME} \n
    ooiiiiiiissiiiiiiisee
)"));
}

TEST_F(Languages, SettingsOfDesktopEntries) {
  EXPECT_TRUE(Coloured("a.desktop", R"(
[Desktop Entry]
HHHHHHHHHHHHHHH
Name[de]=It's
    HHHHossss
Exec=foo "a b" %U
    ossssssssssee
Categories=A;B;
          ossss
Terminal=false
        oCCCCC
)"));
}

TEST_F(Languages, SettingsInTheFormOfDirectives) {
  EXPECT_TRUE(Coloured("a.conf", R"(
server { listen 80; } # c
       o        nnn o ccc
name "it's" on
     ssssss CC
)"));
}

TEST_F(Languages, SettingsOfThisProgram) {
  EXPECT_TRUE(Coloured("orvane.ini", R"(
[Archiver:ZIP]
HHHHHHHHHHHHHH
TabWidth=8
        on
*.c: view -a 2
   oossssssssn
)"));
}

TEST_F(Languages, UnitsHaveNoCommentsBehindValues) {
  EXPECT_TRUE(Coloured("a.service", R"(
# c
ccc
[Service]
HHHHHHHHH
ExecStart=/bin/sh -c "a ${B} %n" ; b # no
         ossssssssssssssiiiiseessssssssCC
Restart=always
       oCCCCCC
)"));
}
