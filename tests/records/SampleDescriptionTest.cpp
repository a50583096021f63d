#include "records/SampleDescription.h"

#include <gtest/gtest.h>

namespace vexora {

TEST(SampleDescription, TakenApartAndComposedGivesTheSameText) {
    for (const std::string text :
         {"ns", "xx", "cm;;", "np;none;", "cm,99m%,gc;;", "cm,99.50w%;;", "sa;dist,zone;",
          "cm;dist;99.5m%,gc,99.9w%,(by us)", "cm;;2h%,xy,98m%,gc",
          "cm;(frozen twice);99m%,(by us)",
          "cm,98x%,(the label; as sold, 2001);cryst,(washed, dried);99.90m%,gc,0.01h%,kf,1e-3j%",
          "ns;;.5g%,kf"}) {
        const auto description = ParseDescription(text);
        ASSERT_TRUE(description) << text;
        EXPECT_EQ(ComposeDescription(*description), text);
    }
}

TEST(SampleDescription, BlanksAroundSeparatorsAreNotKept) {
    const auto description = ParseDescription(" cm , 99 m% , gc ; dist , zone ; ");
    ASSERT_TRUE(description);
    EXPECT_EQ(ComposeDescription(*description), "cm,99m%,gc;dist,zone;");
}

TEST(SampleDescription, WhatFitsNowhereIsNotTakenApart) {
    for (const std::string text :
         {"", "cm", "zz;;", ";;", "cm;", "cm;;;", "cm,gc;;", "cm,99m%,gc,98m%,gc;;",
          "cm,99m%,gc,lc;;", "cm;dist,,zone;", "cm;;gc", "cm;;99m%,gc,lc", "cm;;abcm%,gc", "cm,;;"})
        EXPECT_FALSE(ParseDescription(text)) << text;
}

TEST(SampleDescription, NumbersStandAsTypedAndOthersAddNothing) {
    SampleDescription description;
    description.Source = "cm";
    description.Initial = {"about 99", "m%", "gc"};
    description.Final = {{"", "m%", "gc"}, {"99.50", "m%", "gc"}, {"x", "", ""}, {"2", "h%", ""}};
    EXPECT_EQ(ComposeDescription(description), "cm;;99.50m%,gc,2h%");
    description.Availability = "xx";
    EXPECT_EQ(ComposeDescription(description), "xx");
}

TEST(SampleDescription, FreeTextLosesTheMarksOfTheLine) {
    EXPECT_EQ(FreeText(" (by us); twice, at least "), "(by us twice  at least)");
    EXPECT_EQ(FreeText("dried\r\nin air"), "(dried in air)");
    EXPECT_EQ(FreeText("();"), "");
}

TEST(SampleDescription, PurityMustBeANumberFromZeroToHundred) {
    const std::string invalid = "Invalid purity value";
    const std::string illegal = "Illegal character in purity value";
    const std::pair<const char*, std::string> cases[] = {
        {"", ""},         {"0", ""},          {"100", ""},       {"99.50", ""},
        {"1e1", ""},      {"100.1", invalid}, {"-0.1", invalid}, {"pure", invalid},
        {"99%", invalid}, {"$99", illegal},   {"99,5", illegal}};
    for (const auto& [typed, finding] : cases)
        EXPECT_EQ(CheckPurityValue(typed), finding) << typed;
}

} // namespace vexora
