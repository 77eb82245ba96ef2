#include "ui/platform/DialogPrompts.h"

#include "support/QtPrinting.h"
#include "support/WindowDriver.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

namespace {

constexpr const char* markup = "<b>Smith</b> & Sons\r\nsecond line";

class DialogPromptsTest : public testing::Test {
protected:
    DialogPrompts prompts_;

    MessageAnswer ask(const std::function<void(QWidget&)>& inside) {
        MessageAnswer answer = MessageAnswer::Ok;
        WindowDriver::whileModal(
            [&] {
                answer = prompts_.messageBox(QStringLiteral("Delete Profile"), QString::fromLatin1(markup),
                                             MessageIcon::Question, MessageButtons::YesNo);
            },
            inside);
        return answer;
    }
    QString enter(const std::function<void(QWidget&)>& inside) {
        QString answer;
        WindowDriver::whileModal(
            [&] {
                answer = prompts_.inputBox(QStringLiteral("Save to HTML"), QString::fromLatin1(markup),
                                           QStringLiteral("/folder/Temp.html"));
            },
            inside);
        return answer;
    }
    static QAbstractButton* button(QWidget& box, const char* caption) {
        for (QAbstractButton* candidate : box.findChildren<QAbstractButton*>()) {
            if (candidate->text().remove(u'&') == QLatin1String(caption)) {
                return candidate;
            }
        }
        return nullptr;
    }
    static bool showsPlainly(QWidget& box) {
        for (const QLabel* label : box.findChildren<QLabel*>()) {
            if (label->text() == QStringLiteral("<b>Smith</b> & Sons\nsecond line") &&
                label->textFormat() == Qt::PlainText) {
                return true;
            }
        }
        return false;
    }
};

} // namespace

TEST_F(DialogPromptsTest, question_showsTitleAndPlainText) {
    ask([](QWidget& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Delete Profile"));
        EXPECT_TRUE(showsPlainly(box));
    });
}

TEST_F(DialogPromptsTest, pictureOfABox_isNamedForScreenReaders) {
    const std::pair<MessageIcon, const char*> names[] = {
        {MessageIcon::Critical, "Error"},
        {MessageIcon::Question, "Question"},
        {MessageIcon::Exclamation, "Warning"},
        {MessageIcon::Information, "Information"},
    };
    for (const auto& [icon, name] : names) {
        WindowDriver::whileModal(
            [this, icon = icon] {
                prompts_.messageBox(QStringLiteral("Title"), QStringLiteral("Text"), icon,
                                    MessageButtons::Ok);
            },
            [name = name](QWidget& box) {
                const auto labels = box.findChildren<QLabel*>();
                const auto picture = std::ranges::find_if(
                    labels, [](const QLabel* label) { return !label->pixmap(Qt::ReturnByValue).isNull(); });
                ASSERT_NE(picture, labels.end());
                EXPECT_EQ((*picture)->accessibleName(), QLatin1String(name));
            });
    }
}

TEST_F(DialogPromptsTest, question_yesIsPressed_answersYes) {
    EXPECT_EQ(ask([](QWidget& box) { QTest::mouseClick(button(box, "Yes"), Qt::LeftButton); }),
              MessageAnswer::Yes);
}

TEST_F(DialogPromptsTest, question_noIsPressed_answersNo) {
    EXPECT_EQ(ask([](QWidget& box) { QTest::mouseClick(button(box, "No"), Qt::LeftButton); }),
              MessageAnswer::No);
}

TEST_F(DialogPromptsTest, question_escape_answersNo) {
    EXPECT_EQ(ask([](QWidget& box) { WindowDriver::press(box, Qt::Key_Escape); }), MessageAnswer::No);
}

TEST_F(DialogPromptsTest, question_enterAtOnce_answersNo) {
    EXPECT_EQ(ask([](QWidget& box) { WindowDriver::press(box, Qt::Key_Return); }), MessageAnswer::No);
}

TEST_F(DialogPromptsTest, question_closedByItsFrame_answersNo) {
    EXPECT_EQ(ask([](QWidget& box) { box.close(); }), MessageAnswer::No);
}

TEST_F(DialogPromptsTest, message_hasOneButton) {
    for (const MessageIcon icon :
         {MessageIcon::Critical, MessageIcon::Exclamation, MessageIcon::Information}) {
        WindowDriver::whileModal(
            [&] {
                EXPECT_EQ(prompts_.messageBox(QStringLiteral("Title"), QString::fromLatin1(markup), icon,
                                              MessageButtons::Ok),
                          MessageAnswer::Ok);
            },
            [](QWidget& box) {
                EXPECT_EQ(box.findChildren<QPushButton*>().size(), 1);
                EXPECT_TRUE(showsPlainly(box));
                WindowDriver::press(box, Qt::Key_Return);
            });
    }
}

TEST_F(DialogPromptsTest, inputBox_startsFromTheGivenTextAndAnswersWhatWasTyped) {
    const QString answer = enter([](QWidget& box) {
        auto* line = box.findChild<QLineEdit*>();
        ASSERT_NE(line, nullptr);
        EXPECT_EQ(line->text(), QStringLiteral("/folder/Temp.html"));
        EXPECT_EQ(line->selectedText(), line->text());
        EXPECT_TRUE(showsPlainly(box));
        QTest::keyClicks(line, QStringLiteral("typed.html"));
        QTest::keyClick(line, Qt::Key_Return);
    });
    EXPECT_EQ(answer, QStringLiteral("typed.html"));
}

TEST_F(DialogPromptsTest, inputBox_cancelled_answersTheEmptyText) {
    EXPECT_EQ(enter([](QWidget& box) { WindowDriver::press(box, Qt::Key_Escape); }), QString());
}

TEST_F(DialogPromptsTest, pointer_isTheShapeThatWasSet) {
    EXPECT_EQ(prompts_.pointer(), PointerShape::Default);
    prompts_.setPointer(PointerShape::Hourglass);
    EXPECT_EQ(prompts_.pointer(), PointerShape::Hourglass);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    prompts_.setPointer(PointerShape::Arrow);
    EXPECT_EQ(prompts_.pointer(), PointerShape::Arrow);
    prompts_.setPointer(PointerShape::Default);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}
