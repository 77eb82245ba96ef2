#include "ui/widgets/Caption.h"

#include "support/QtPrinting.h"
#include "ui/widgets/AccentTabBar.h"
#include "ui/widgets/CaptionLabel.h"
#include "ui/widgets/ColorContrast.h"

#include <gtest/gtest.h>

TEST(Caption, captionText_doublesEveryAmpersand) {
    EXPECT_EQ(captionText(QStringLiteral("A & B && C")), QStringLiteral("A && B &&&& C"));
}

TEST(Caption, shownCaption_isTheTextAgain) {
    for (const QString& text :
         {QStringLiteral("A & B && C"), QStringLiteral("&"), QStringLiteral("&&&"), QString()}) {
        EXPECT_EQ(shownCaption(captionText(text)), text);
    }
    EXPECT_EQ(shownCaption(QStringLiteral("&File&")), QStringLiteral("File"));
}

TEST(CaptionLabel, caption_isShownWithSingleAmpersandsAndWithoutEmptyLinesAtItsEnd) {
    CaptionLabel label(QStringLiteral("lblSummary"));
    label.setCaption(QStringLiteral("A && B\r\n\r\n<b>C</b>\r\n\r\n"));
    EXPECT_EQ(label.caption(), QStringLiteral("A && B\r\n\r\n<b>C</b>\r\n\r\n"));
    EXPECT_EQ(label.text(), QStringLiteral("A & B\n\n<b>C</b>"));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_TRUE(label.wordWrap());
}

TEST(CaptionLabel, largerLetters_takeMoreRoom) {
    CaptionLabel label(QStringLiteral("lblSummary"));
    label.setCaption(QStringLiteral("A sentence of some length, which is broken into lines. ").repeated(4));
    const QSize hint = label.sizeHint();
    const int height = label.heightForWidth(300);
    QFont large = label.font();
    large.setPointSizeF(2 * large.pointSizeF());
    label.setFont(large);
    EXPECT_GT(label.sizeHint().width(), 1.5 * hint.width());
    EXPECT_GT(label.heightForWidth(300), 2 * height);
}

TEST(CaptionLabel, manyWidths_takeTheSameRoomWheneverTheyAreAskedFor) {
    const QString caption =
        QStringLiteral("A sentence of some length, which is broken into lines. ").repeated(4);
    CaptionLabel label(QStringLiteral("lblSummary"));
    label.setCaption(caption);
    for (const int round : {1, 2}) {
        for (int width = 100; width <= 600; width += 10) {
            CaptionLabel fresh(QStringLiteral("lblFresh"));
            fresh.setCaption(caption);
            EXPECT_EQ(label.heightForWidth(width), fresh.heightForWidth(width))
                << width << ", round " << round;
        }
    }
}

TEST(CaptionLabel, paintedLines_takeTheRoomThatTheHintsTold) {
    CaptionLabel label(QStringLiteral("lblSummary"));
    label.setCaption(
        QStringLiteral("One two three four five six seven eight nine ten.\r\n\r\nEleven, twelve."));
    for (const int width : {400, 90, 160, 90}) {
        label.resize(width, label.heightForWidth(width));
        const QImage image = label.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        const auto inkIn = [&](int from, int to) {
            for (int y = from; y < to; ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (qAbs(image.pixelColor(x, y).value() -
                             image.pixelColor(image.width() - 1, 0).value()) > 100) {
                        return true;
                    }
                }
            }
            return false;
        };
        const int line = label.fontMetrics().lineSpacing();
        EXPECT_TRUE(inkIn(0, line)) << width;
        EXPECT_TRUE(inkIn(image.height() - line, image.height())) << width;
    }
}

TEST(AccentTabBar, selectedTab_isUnderlinedInTheAccentColor) {
    AccentTabBar bar;
    bar.addTab(QStringLiteral("One"));
    bar.addTab(QStringLiteral("Two"));
    bar.resize(bar.sizeHint());
    EXPECT_EQ(bar.accent(), ColorContrast::paperGrey(bar.palette()));
    bar.setAccent(QColor(10, 200, 30));
    for (const int selected : {0, 1}) {
        bar.setCurrentIndex(selected);
        const QImage image = bar.grab().toImage();
        const auto under = [&](int tab) {
            const QRect place = bar.tabRect(tab);
            return image.pixelColor(place.center().x(), place.bottom());
        };
        EXPECT_EQ(under(selected), QColor(10, 200, 30));
        EXPECT_NE(under(1 - selected), QColor(10, 200, 30));
    }
}
