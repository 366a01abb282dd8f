#include "catalogue/definition_reader.h"

#include <gtest/gtest.h>

#include "model/containers.h"
#include "model/form.h"

namespace lw {
namespace {

const char* kSample = R"LWF(# a small form
form TF_SAMPLE "Sample (Test)" 6000 3000
label Label1(0) 120 100 2000 200 "a Employee's number" size=7 bold
text  Text1(0)  120 300 2000 285 tag=TIN tab=3 align=center tip="SSN here" fit=8.5
text  Text1(1)  120 700 2000 855 tag=ISSUER tab=1 multi
line  -         0 1600 6000 1600 border=2
line  -         3000 0 3000 1600
rect  myBorder  60 60 5880 2880
check Check(0)  4000 300 200 200 tag="Box 7"
text  Text1(2)  120 1800 1000 285 locked nostop hidden max=4 text="was here"
label RTL1      3200 300 2500 900 "placeholder" wrap
)LWF";

TEST(DefinitionReader, ReadsTheFormLineAndEveryControlInOrder) {
    FormDefinition d = readDefinition(kSample);
    EXPECT_EQ(d.name, "TF_SAMPLE");
    EXPECT_EQ(d.caption, "Sample (Test)");
    EXPECT_EQ(d.width, 6000);
    EXPECT_EQ(d.height, 3000);
    ASSERT_EQ(d.controls.size(), 9u);
    EXPECT_EQ(d.controls[0].control.key(), "Label1(0)");
    EXPECT_EQ(d.controls[0].control.caption, "a Employee's number");
    EXPECT_DOUBLE_EQ(d.controls[0].control.fontSize, 7);
    EXPECT_TRUE(d.controls[0].control.fontBold);
}

TEST(DefinitionReader, ReadsTheProperties) {
    FormDefinition d = readDefinition(kSample);
    const Control& ssn = d.controls[1].control;
    EXPECT_EQ(ssn.kind, ControlKind::TextBox);
    EXPECT_EQ(ssn.tag, "TIN");
    EXPECT_EQ(ssn.tabIndex, 3);
    EXPECT_EQ(ssn.alignment, 2);
    EXPECT_EQ(ssn.toolTipText, "SSN here");
    EXPECT_DOUBLE_EQ(ssn.fitFloor, 8.5);
    EXPECT_DOUBLE_EQ(d.controls[2].control.fitFloor, 0) << "a text keeps its size unless given a floor";
    EXPECT_TRUE(ssn.tabStop);
    EXPECT_TRUE(d.controls[2].control.multiLine);
    const Control& hidden = d.controls[7].control;
    EXPECT_TRUE(hidden.locked);
    EXPECT_FALSE(hidden.tabStop);
    EXPECT_FALSE(hidden.visible);
    EXPECT_EQ(hidden.maxLength, 4);
    EXPECT_EQ(hidden.text, "was here");
    EXPECT_EQ(d.controls[6].control.tag, "Box 7");
    EXPECT_EQ(d.controls[6].control.kind, ControlKind::CheckLabel);
}

TEST(DefinitionReader, UnnamedLinesJoinOneArrayAndKeepBothEnds) {
    FormDefinition d = readDefinition(kSample);
    EXPECT_EQ(d.controls[3].control.key(), "Line1(0)");
    EXPECT_EQ(d.controls[4].control.key(), "Line1(1)");
    EXPECT_EQ(d.controls[3].control.y2, 1600);
    EXPECT_EQ(d.controls[3].control.borderWidth, 2);
    EXPECT_EQ(d.controls[4].control.x2, 3000);
}

TEST(DefinitionReader, RealizedControlsBelongToTheForm) {
    Form form("TF_SAMPLE");
    realizeDefinition(readDefinition(kSample), form);
    EXPECT_EQ(form.caption, "Sample (Test)");
    ASSERT_NE(form.find("text1", 1), nullptr);
    EXPECT_EQ(form.find("Text1", 1)->form, &form);
    EXPECT_EQ(form.controls().size(), 9u);
}

TEST(DefinitionReader, FaultsNameTheirLine) {
    auto faultOf = [](const std::string& text) {
        try {
            readDefinition(text);
        } catch (const DefinitionError& e) {
            return std::string(e.what());
        }
        return std::string("no fault");
    };
    EXPECT_EQ(faultOf("text Text1(0) 1 2 3 4"), "line 1: the first line must be the form line");
    EXPECT_EQ(faultOf("form F \"c\" 10 10\nbox - 1 2 3 4"), "line 2: unknown kind \"box\"");
    EXPECT_EQ(faultOf("form F \"c\" 10 10\ntext Text1(x) 1 2 3 4"), "line 2: bad index \"x\"");
    EXPECT_EQ(faultOf("form F \"c\" 10 10\ntext Text1(0) 1 2 3"), "line 2: missing height");
    EXPECT_EQ(faultOf("form F \"c\" 10 10\ntext Text1(0) 1 2 3 4 colour=red"),
              "line 2: unknown property \"colour\"");
    EXPECT_EQ(faultOf("form F \"c\" 10 10\nlabel L 1 2 3 4 \"open"), "line 2: a quoted word is not closed");
    EXPECT_EQ(faultOf(""), "no form line");
    EXPECT_EQ(faultOf("form F \"c\" 10 10\ntext T 1 2 3 4 align=middle"), "line 2: bad alignment \"middle\"");
    EXPECT_EQ(faultOf("form F \"c\" 10 10\nsay Text1(0) \"Card 1\""),
              "line 2: no control \"Text1(0)\" drawn before");
    EXPECT_EQ(faultOf("form F \"c\" 10 10\ntext T 1 2 3 4\nsay T \"a\" \"b\""),
              "line 3: more than a control and its words after say");
}

TEST(DefinitionReader, SpokenWordsComeAsAPropertyOrOnALineOfTheirOwn) {
    FormDefinition d = readDefinition(
        "form F \"c\" 10 10\nrect - 0 0 9 9 say=\"Left license\"\ntext Text1(3) 1 2 3 4\nsay Text1(3) \"Card "
        "2, name\"\n");
    ASSERT_EQ(d.controls.size(), 2u);
    EXPECT_EQ(d.controls[0].control.spokenName, "Left license");
    EXPECT_EQ(d.controls[1].control.spokenName, "Card 2, name");
}

}  // namespace
}  // namespace lw

namespace lw {
namespace {

const char* kPages = R"LWF(form TF_PAGES "Pages" 8000 5000
tabs SSTab1 0 0 8000 4600 tabs="First half|Second half" tabheight=295
picture Pic1L 0 360 4000 4000 in=SSTab1 page=0
picture Pic2L 0 360 4000 4000 in=SSTab1 page=1
in Pic1L
text  Text1(0) 100 200 1000 255
line  -        0 50 4000 50
in Pic2L
text  Text1(1) 100 200 1000 255 in=-
text  Text1(2) 300 400 1000 255
in -
label labelMisc 60 4700 7800 285 ""
)LWF";

TEST(DefinitionReaderPages, PutsControlsInsideTheirContainersWithPlacesRelativeToThem) {
    FormDefinition d = readDefinition(kPages);
    ASSERT_EQ(d.controls.size(), 8u);
    EXPECT_EQ(d.controls[0].control.items, (std::vector<std::string>{"First half", "Second half"}));
    EXPECT_EQ(d.controls[0].control.tabHeight, 295);
    EXPECT_EQ(d.controls[1].container, "SSTab1");
    EXPECT_EQ(d.controls[1].control.page, 0);
    EXPECT_EQ(d.controls[2].control.page, 1);
    EXPECT_EQ(d.controls[3].container, "Pic1L");
    EXPECT_EQ(d.controls[3].control.page, -1) << "a page is for the controls straight on a tab control";
    EXPECT_EQ(d.controls[5].container, "") << "in=- on the line puts it on the form";
    EXPECT_EQ(d.controls[6].container, "Pic2L");
    EXPECT_EQ(d.controls[7].container, "");

    Form form("TF_PAGES");
    realizeDefinition(d, form);
    const Control& first = form.at("Text1", 0);
    ASSERT_NE(first.container, nullptr);
    EXPECT_EQ(first.container->name, "Pic1L");
    EXPECT_EQ(formLeft(first), 100);
    EXPECT_EQ(formTop(first), 560);
    EXPECT_EQ(formTop(form.at("Text1", 2)), 760);
    EXPECT_EQ(formTop(form.at("Text1", 1)), 200);
}

TEST(DefinitionReaderPages, RefusesAContainerNotDrawnBeforeAndAPagelessControlOnTabs) {
    EXPECT_THROW(readDefinition("form F \"\" 10 10\nin Pic1L\n"), DefinitionError);
    EXPECT_THROW(readDefinition("form F \"\" 10 10\ntext Text1(0) 0 0 1 1 in=Nowhere\n"), DefinitionError);
    EXPECT_THROW(readDefinition("form F \"\" 10 10\ntabs T 0 0 9 9 tabs=\"a|b\"\npicture P 0 0 1 1 in=T\n"),
                 DefinitionError);
    EXPECT_THROW(readDefinition("form F \"\" 10 10\ntabs T 0 0 9 9\nin T extra\n"), DefinitionError);
}

}  // namespace
}  // namespace lw
