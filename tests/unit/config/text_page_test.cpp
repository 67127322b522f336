// The code page of a new viewer or editor.
#include <gtest/gtest.h>

#include "config/values/options.h"
#include "foundation/code_pages.h"

namespace {

struct TextPages : testing::Test {
  ~TextPages() override { Options::TextCodePage = 0; }
};

TEST_F(TextPages, WithoutASettingItIsLatinOneAndNotTheDefaultPage) {
  Options::TextCodePage = 0;
  EXPECT_EQ(TextPage(), 819);
  EXPECT_NE(TextPage(), DefaultCodePage);
}

TEST_F(TextPages, TheSettingIsThePage) {
  Options::TextCodePage = 20866;
  EXPECT_EQ(TextPage(), 20866);
  Options::TextCodePage = 65001;  // above what a signed 16-bit number holds
  EXPECT_EQ(TextPage(), 65001);
}

}  // namespace
