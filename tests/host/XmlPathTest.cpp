#include "host/XmlPath.h"

#include <gtest/gtest.h>

namespace vexora::test {
namespace {

using host::XmlTexts;
using Texts = std::vector<std::string>;

constexpr const char* document = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- a <comment> -->
<Report xmlns="http://x" version='2'>
  <Compound><Name>water</Name><Org/><Index>1</Index></Compound>
  <Compound>
    <Name>ethanol</Name><Name>alcohol &amp; more</Name><Index> 2 </Index>
  </Compound>
  <Data><Compound><Index>2</Index></Compound><Value a="&lt;">1.50&#176;<![CDATA[<x>]]></Value></Data>
</Report>
)";

TEST(XmlPath, StepsPositionsConditionsAndDepth) {
    EXPECT_EQ(XmlTexts(document, "/Report/Compound/Name"),
              (Texts{"water", "ethanol", "alcohol & more"}));
    EXPECT_EQ(XmlTexts(document, "Report/Compound[2]/Name[2]"), (Texts{"alcohol & more"}));
    EXPECT_EQ(XmlTexts(document, "Report/Compound[Index='2']/Name[1]"), (Texts{"ethanol"}));
    EXPECT_EQ(XmlTexts(document, "//Compound[Index='2']").size(), 2U);
    EXPECT_EQ(XmlTexts(document, "//Index"), (Texts{"1", "2", "2"}));
    EXPECT_EQ(XmlTexts(document, "/Report//Compound//Index[1]"), (Texts{"1", "2", "2"}));
    EXPECT_EQ(XmlTexts(document, "Report/*/Value"), (Texts{"1.50\xC2\xB0<x>"}));
    EXPECT_EQ(XmlTexts(document, "Report/Compound[Name='water'][1]/Org"), (Texts{""}));
    EXPECT_EQ(XmlTexts(document, "Report/Compound[Name='a/b']"), Texts{});
    EXPECT_EQ(XmlTexts(document, "Compound"), Texts{});
}

TEST(XmlPath, WhatIsNotWellFormedIsRefused) {
    const char* const bad[] = {
        "",
        "text",
        "<a>",
        "<a></b>",
        "<a/><b/>",
        "<a/>tail",
        "<a><b></a></b>",
        "<a x=1/>",
        "<a x='1' x='2'/>",
        "<a x='1'y='2'/>",
        "<a x='<'/>",
        "<a>&nope;</a>",
        "<a>&#0;</a>",
        "<a>&#xZ;</a>",
        "<a>&#xD800;</a>",
        "<a>& b</a>",
        "<a>]]></a>",
        "<a><!-- -- --></a>",
        "<a>\x01</a>",
        "<a>\xFF</a>",
        "<1a/>",
        "<a",
        "<!DOCTYPE a><a/>",
        " <?xml version='1.0'?><a/>",
    };
    for (const std::string text : bad)
        EXPECT_THROW(XmlTexts(text, "a"), XmlError) << text;
}

TEST(XmlPath, PathsThatAreNoneAreRefused) {
    for (const std::string path :
         {"", "/", "a//", "a[", "a[]", "a[0]", "a[b]", "a[b=c]", "a[='c']", "a[1]b"})
        EXPECT_THROW(XmlTexts("<a/>", path), XmlError) << path;
}

} // namespace
} // namespace vexora::test
