#include <gtest/gtest.h>

#include "Src/HXUI/RtfFields.h"

namespace {

using RtfFields::DisarmUnusual;

TEST(RtfFieldsTest, LinksStayAsTheyAre) {
  const std::string plain = R"({\rtf1{\field{\*\fldinst HYPERLINK "a"}{\fldrslt b}}})";
  EXPECT_EQ(DisarmUnusual(plain), plain);
  const std::string braced = R"({\rtf1{\field {\*\fldinst{HYPERLINK "a"}}{\fldrslt b}}})";
  EXPECT_EQ(DisarmUnusual(braced), braced);
}

TEST(RtfFieldsTest, AFieldWithoutInstructionBecomesAnUnknownGroup) {
  EXPECT_EQ(DisarmUnusual(R"({\rtf1{\field{\fldrslt b}}})"),
            R"({\rtf1{\disarmedfield{\fldrslt b}}})");
  EXPECT_EQ(DisarmUnusual(R"({\rtf1{\field}})"), R"({\rtf1{\disarmedfield}})");
  EXPECT_EQ(DisarmUnusual(R"({\rtf1\field)"), R"({\rtf1\disarmedfield)");
}

TEST(RtfFieldsTest, SoDoesOneWithAnInstructionThatIsNoText) {
  for (const char* instruction :
       {R"({\*\fldinst})", R"({\*\fldinst  })", R"({\*\fldinst a\b c})", R"({\*\fldinst{a}b})",
        R"({\*fldinst a})", R"({* a})", R"({\*\fldinst-1 a})", R"({\*\fldedit a})",
        R"({\*\fldinstx a})", R"({\*\fldinst1 a})", R"({\fldinst a})", R"({\*\fldinst a)",
        R"({\*\fldinst)", R"({\*)", R"({)"}) {
    const std::string start = R"({\rtf1{\field)";
    const std::string disarmed = R"({\rtf1{\disarmedfield)";
    EXPECT_EQ(DisarmUnusual(start + instruction), disarmed + instruction);
  }
}

TEST(RtfFieldsTest, OnlyTheWordItselfIsMeant) {
  for (const char* rtf : {R"({\rtf1\fieldx\\field a field \'66ield\})", "", "\\", R"(\\)"}) {
    EXPECT_EQ(DisarmUnusual(rtf), rtf);
  }
  EXPECT_EQ(DisarmUnusual(R"(\\\field5)"), R"(\\\disarmedfield5)");
}

}  // namespace
