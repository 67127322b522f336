// What a user of the program looks into every day: logs, tables, manuals, mail.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, LogsColourTheirLevels) {
  EXPECT_TRUE(Coloured("syslog", R"(
2024-01-01 10:20:30 ERROR [x] it's "info 1" warning: ok
nnnnnnnnnn nnonnonn !!!!! o o      ssssssss ~~~~~~~o ++
DEBUG no errors_here
ccccc
)"));
}

TEST_F(Languages, TablesHaveCommentsAndOptions) {
  EXPECT_TRUE(Coloured("fstab", R"(
# it's
cccccc
UUID=12-34 / ext4 defaults,noatime 0 1 # c
kkkkonnnnn o tttt aaaaaaaaoaaaaaaa n n ccc
)"));
}

TEST_F(Languages, TablesOfTimes) {
  EXPECT_TRUE(Coloured("crontab", R"(
@daily x
kkkkkk
*/5 * * * * root a#b # c
oon o o o o          ccc
)"));
}

TEST_F(Languages, ManualsBeginRequestsWithAFullStop) {
  EXPECT_TRUE(Coloured("a.1", R"(
.\" it's
cccccccc
.SH NAME
HHHHHHHH
foo \- do \fBbold\fR end.B x \" c
    ee    eee    eee         cccc
.B word "x"
mmmmmmmmsss
.IP \(bu 2
kkk eeee n
)"));
}

TEST_F(Languages, MailHeadersBeginLines) {
  EXPECT_TRUE(Coloured("a.eml", R"(
From joe@x.y Mon Jan 1
HHHHHHHHHHHHHHHHHHHHHH
Subject: Re: From: it's
kkkkkkkksssssssssssssss
> quoted
dddddddd
>> twice
cccccccc
Hi: Subject: no - text

--boundary
pppppppppp
)"));
}

TEST_F(Languages, MailOfTheWeb) {
  EXPECT_TRUE(Coloured("a.http", R"(
HTTP/1.1 200 OK
HHHHHHHHHHHHHHH
content-type: text/html
kkkkkkkkkkkkkssssssssss
)"));
}
