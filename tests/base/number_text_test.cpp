#include "base/number_text.h"

#include <gtest/gtest.h>

#include "base/code_page.h"
#include "base/random_int.h"
#include "base/seeded_uniform.h"
#include "fakes/expect_error.h"
#include "fakes/fakes.h"

namespace ng {
namespace {

TEST(NumberText, LenientReadingTakesTheLeadingNumber) {
  const std::vector<std::pair<const char*, double>> cases = {
      {"", 0},    {"x3", 0},  {"3x", 3},    {" 3 ", 3},    {"\t-7|9", -7}, {"+4", 4},
      {"--4", 0}, {"-", 0},   {".5kg", .5}, {".", 0},      {"2.", 2},      {"1e2x", 100},
      {"1e", 1},  {"inf", 0}, {"nan", 0},   {"12 34", 12}, {"1e-999", 0},  {"0x10", 0},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(LeadingNumber(text), value) << text;
  EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + "1"), 0);
  for (const char* text : {"1e999", "-1e999"}) {
    EXPECT_RUNTIME_ERROR(LenientInteger(text), "Overflow");
  }
  EXPECT_RUNTIME_ERROR(LenientInteger(std::string(400, '7')), "Overflow");
}

TEST(NumberText, IntegersRoundHalvesToEvenAndStayInRange) {
  const std::vector<std::pair<const char*, int>> cases = {
      {"0.5", 0},   {"1.5", 2},   {"2.5", 2},      {"3.5", 4},         {"-0.5", 0},
      {"-1.5", -2}, {"-2.5", -2}, {"2.500001", 3}, {"32767.4", 32767}, {"-32768.5", -32768},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(LenientInteger(text).Value(), value) << text;
  EXPECT_RUNTIME_ERROR(LenientInteger("32767.5"), "Overflow");
  EXPECT_RUNTIME_ERROR(LenientInteger("-32769"), "Overflow");
  EXPECT_EQ(LenientLong("70000"), 70000);
  EXPECT_RUNTIME_ERROR(LenientLong("2147483648"), "Overflow");
}

TEST(NumberText, StrictReadingWantsAWholeNumberAndNothingElse) {
  EXPECT_EQ(StrictInteger(" 12 ").Value(), 12);
  EXPECT_EQ(StrictInteger("-3").Value(), -3);
  for (const char* text : {"", " ", "-", "3x", "3.0", "1 2", "1e2"}) {
    EXPECT_RUNTIME_ERROR(StrictInteger(text), "Type mismatch") << text;
  }
  EXPECT_RUNTIME_ERROR(StrictInteger("40000"), "Overflow");
}

TEST(NumberText, PrintsAsThePlatformDoes) {
  EXPECT_EQ(PrintForm(Integer(3)), " 3 ");
  EXPECT_EQ(PrintForm(Integer(-3)), "-3 ");
  EXPECT_EQ(PlainText(17.4), "17.4");
  EXPECT_EQ(PlainText(0.1 + 0.2), "0.3");
  EXPECT_EQ(PlainText(-0.0), "0");
  EXPECT_EQ(SignedText(0), "+0");
  EXPECT_EQ(SignedText(-2), "-2");
  const std::vector<std::pair<double, const char*>> weights = {
      {0, ".00"}, {17.4, "17.40"}, {.125, ".13"}, {2.345, "2.35"}, {-.5, "-.50"}, {-.001, ".00"}};
  for (const auto& [value, text] : weights) EXPECT_EQ(TwoDecimals(value), text);
}

TEST(RandomInt, RoundsTheScaledValueBeforeTheModulo) {
  class Fixed : public Uniform {
   public:
    float value = 0;
    float Next() override { return value; }
  } uniform;
  EXPECT_EQ(RandomInt(uniform, 6).Value(), 1);
  // 2^-24 times 2,000,000,000 is 119.2...: 119 modulo 6 is 5.
  uniform.value = 0x1p-24F;
  EXPECT_EQ(RandomInt(uniform, 6).Value(), 6);
  // 0.5 gives 1,000,000,000, which is 4 modulo 6; scaling 0.5 by 6 would give 4 as well, but
  // 0.25 gives 500,000,000, 2 modulo 6, where scaling would give 2.
  uniform.value = 0.5F;
  EXPECT_EQ(RandomInt(uniform, 6).Value(), 5);
  uniform.value = 0.25F;
  EXPECT_EQ(RandomInt(uniform, 6).Value(), 3);
  SeededUniform seeded(1);
  for (int i = 0; i < 10000; ++i) {
    const float value = seeded.Next();
    ASSERT_TRUE(value >= 0 && value < 1);
  }
}

TEST(CodePage, EveryByteSurvivesAndStrangersBecomeQuestionMarks) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  EXPECT_EQ(ToUtf8("\x80\xe9"), "\xE2\x82\xAC\xC3\xA9");
  EXPECT_EQ(FromUtf8("a\xE4\xB8\x96\xF0\x9F\x8E\xB2z\xFF\xC3"), "a??z??");
}

}  // namespace
}  // namespace ng
