#include "support/ScriptedPrompts.h"

#include "support/QtPrinting.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

MessageAnswer ask(Prompts& prompts, const QString& text) {
    return prompts.messageBox(u"Title"_s, text, MessageIcon::Question, MessageButtons::YesNo);
}

void showError(Prompts& prompts, const QString& text) {
    prompts.messageBox(u"A.B"_s, text, MessageIcon::Critical, MessageButtons::Ok);
}

} // namespace

TEST(ScriptedPromptsTest, messageBox_expected_givesTheScriptedAnswer) {
    ScriptedPrompts prompts;
    prompts.expectMessage(u"Title"_s, u"Sure?"_s, MessageIcon::Question, MessageAnswer::Yes);
    prompts.expectMessage(u"Title"_s, u"Really?"_s, MessageIcon::Question, MessageAnswer::No);
    EXPECT_FALSE(prompts.isSatisfied());
    EXPECT_EQ(ask(prompts, u"Sure?"_s), MessageAnswer::Yes);
    EXPECT_EQ(ask(prompts, u"Really?"_s), MessageAnswer::No);
    EXPECT_TRUE(prompts.isSatisfied());
}

TEST(ScriptedPromptsTest, messageBox_unexpected_failsTheTest) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPrompts prompts;
            ask(prompts, u"Sure?"_s);
        },
        "unexpected message box [Title] [Sure?]");
}

TEST(ScriptedPromptsTest, messageBox_otherThanExpected_failsTheTest) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPrompts prompts;
            prompts.expectMessage(u"Title"_s, u"Sure?"_s, MessageIcon::Question);
            ask(prompts, u"Certain?"_s);
        },
        "Certain?");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPrompts prompts;
            prompts.expectMessage(u"Title"_s, u"Sure?"_s, MessageIcon::Question);
            prompts.messageBox(u"Title"_s, u"Sure?"_s, MessageIcon::Question, MessageButtons::Ok);
        },
        "buttons");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPrompts prompts;
            prompts.expectInput(u"Title"_s, u"Name:"_s, QString(), u"x"_s);
            ask(prompts, u"Name:"_s);
        },
        "input box");
}

TEST(ScriptedPromptsTest, expectMessage_neverShown_failsTheTest) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPrompts prompts;
            prompts.expectMessage(u"Title"_s, u"Sure?"_s, MessageIcon::Question);
        },
        "never shown");
    ScriptedPrompts forgiven;
    forgiven.expectMessage(u"Title"_s, u"Sure?"_s, MessageIcon::Question);
    forgiven.clear();
}

TEST(ScriptedPromptsTest, expectError_withAndWithoutDescription_comparesWhatIsGiven) {
    ScriptedPrompts prompts;
    prompts.expectError(u"A.B"_s, 6, u"Overflow"_s);
    showError(prompts, u"A.B\r\n6-Overflow"_s);
    prompts.expectError(u"A.B"_s, 5);
    showError(prompts, u"A.B\r\n5-Whatever a library says"_s);
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPrompts strict;
            strict.expectError(u"A.B"_s, 5);
            showError(strict, u"A.B\r\n55-Other"_s);
        },
        "does not start with");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPrompts strict;
            strict.expectError(u"A.B"_s, 6, u"Overflow"_s);
            showError(strict, u"A.B\r\n6-Overflow."_s);
        },
        "Overflow.");
}

TEST(ScriptedPromptsTest, inputBox_expected_givesTheScriptedText) {
    ScriptedPrompts prompts;
    prompts.expectInput(u"Title"_s, u"Name:"_s, u"old"_s, u"new"_s);
    EXPECT_EQ(prompts.inputBox(u"Title"_s, u"Name:"_s, u"old"_s), u"new"_s);
}

TEST(ScriptedPromptsTest, setPointer_shapes_areKeptInOrder) {
    ScriptedPrompts prompts;
    EXPECT_EQ(prompts.pointer(), PointerShape::Default);
    prompts.setPointer(PointerShape::Hourglass);
    prompts.setPointer(PointerShape::Arrow);
    EXPECT_EQ(prompts.pointer(), PointerShape::Arrow);
    EXPECT_EQ(prompts.pointerHistory(), (QList<PointerShape>{PointerShape::Hourglass, PointerShape::Arrow}));
}
