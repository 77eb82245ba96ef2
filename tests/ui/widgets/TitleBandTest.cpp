#include "ui/widgets/TitleBand.h"

#include "support/QtPrinting.h"
#include "ui/widgets/ColorContrast.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>
#include <gtest/gtest.h>

#include <algorithm>

TEST(TitleBand, setCaption_showsADoubledAmpersandOnce) {
    TitleBand band;
    band.setCaption(captionText(QStringLiteral("Smith & Sons")));
    EXPECT_EQ(band.caption(), QStringLiteral("Smith && Sons"));
    EXPECT_EQ(band.text(), QStringLiteral("Smith & Sons"));
    EXPECT_EQ(band.accessibleName(), QStringLiteral("Smith & Sons"));
}

TEST(TitleBand, setCaption_singleAmpersand_isAnAcceleratorsMark) {
    TitleBand band;
    band.setCaption(QStringLiteral("&File&"));
    EXPECT_EQ(band.text(), QStringLiteral("File"));
}

TEST(TitleBand, longCaption_isCutWithAnEllipsisAndWholeInTheToolTip) {
    TitleBand band;
    const QString name = QStringLiteral("A home with a very long name ").repeated(20);
    band.setCaption(name);
    band.resize(300, band.sizeHint().height());
    EXPECT_TRUE(band.shownText().endsWith(QChar(0x2026)));
    EXPECT_LE(band.fontMetrics().horizontalAdvance(band.shownText()), 300);
    EXPECT_LT(band.minimumSizeHint().width(), 300);

    band.show();
    QHelpEvent wanted(QEvent::ToolTip, QPoint(10, 10), band.mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(&band, &wanted);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("<span>") + name + QStringLiteral("</span>"));
    QToolTip::hideText();
}

TEST(TitleBand, shortCaption_standsWhole) {
    TitleBand band;
    band.setCaption(QStringLiteral("  Ann"));
    band.resize(band.sizeHint());
    EXPECT_EQ(band.shownText(), QStringLiteral("  Ann"));
}

TEST(TitleBand, accent_isTheGroundAndChoosesALegibleText) {
    TitleBand band;
    EXPECT_EQ(band.ground(), ColorContrast::paperGrey(band.palette()));
    for (const QColor& accent : {QColor(10, 10, 60), QColor(250, 240, 200), QColor(120, 120, 120)}) {
        band.setAccent(accent);
        EXPECT_EQ(band.ground(), accent);
        EXPECT_GE(ColorContrast::ratio(band.textColor(), accent), 4.5);
    }
}

TEST(TitleBand, font_isLargerThanTheWindows) {
    QWidget window;
    const TitleBand band(&window);
    EXPECT_GT(band.font().pointSizeF(), 1.3 * window.font().pointSizeF());
    EXPECT_EQ(band.font().weight(), QFont::DemiBold);
}

TEST(TitleBand, addWidget_standsAtTheEndAndTheTitleStopsBeforeIt) {
    TitleBand band;
    auto* label = new QLabel(QStringLiteral("LI"));
    label->setFixedSize(100, 60);
    const int before = band.sizeHint().height();
    band.addWidget(label);
    band.setAccent(QColor(10, 10, 60));
    EXPECT_GT(band.sizeHint().height(), before);
    band.resize(400, band.sizeHint().height());
    band.setCaption(QString(200, u'n'));
    band.grab();
    EXPECT_EQ(label->geometry().right(), 400 - 24 - 1);
    EXPECT_LE(24 + band.fontMetrics().horizontalAdvance(band.shownText()), label->x());
    EXPECT_EQ(label->palette().color(QPalette::WindowText), band.textColor());
}

TEST(TitleBand, rightToLeft_titleBeginsAtTheRightAndTheWidgetStandsLeft) {
    TitleBand band;
    band.setLayoutDirection(Qt::RightToLeft);
    auto* label = new QLabel;
    label->setFixedSize(100, 60);
    band.addWidget(label);
    band.resize(400, band.sizeHint().height());
    band.setCaption(QStringLiteral("HH"));
    const QImage image = band.grab().toImage();
    EXPECT_EQ(label->x(), 24);
    int leftmost = image.width();
    int rightmost = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == band.textColor()) {
                leftmost = std::min(leftmost, x);
                rightmost = std::max(rightmost, x);
            }
        }
    }
    EXPECT_GT(leftmost, 300);
    EXPECT_LT(rightmost, 400 - 24);
}

TEST(TitleBand, font_ofAWindowThatCountsInPixels_isLargerToo) {
    QWidget window;
    QFont font = window.font();
    font.setPixelSize(20);
    window.setFont(font);
    const TitleBand band(&window);
    EXPECT_EQ(band.font().pixelSize(), 28);
}

TEST(TitleBand, anotherTheme_recoloursTheBandAndWhatStandsInIt) {
    TitleBand band;
    auto* label = new QLabel(QStringLiteral("LI"));
    band.addWidget(label);
    for (const QColor& theme : {QColor(240, 240, 240), QColor(40, 40, 40)}) {
        band.setPalette(QPalette(theme));
        EXPECT_EQ(band.ground(), ColorContrast::paperGrey(QPalette(theme)));
        EXPECT_EQ(label->palette().color(QPalette::Window), band.ground());
        EXPECT_EQ(label->palette().color(QPalette::WindowText), band.textColor());
        EXPECT_GE(ColorContrast::ratio(band.textColor(), band.ground()), 4.5);
    }
}
