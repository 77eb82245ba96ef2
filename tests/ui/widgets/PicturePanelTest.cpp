#include "ui/widgets/PicturePanel.h"

#include "support/QtPrinting.h"

#include <QImage>
#include <QPainter>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

QIcon redPicture() {
    QPixmap picture(60, 60);
    picture.fill(Qt::red);
    return QIcon(picture);
}

/// Where the panel shows a colour.
QRect roomOf(PicturePanel& panel, const QColor& color) {
    const QImage image = panel.grab().toImage();
    QRect room;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color) {
                room |= QRect(x, y, 1, 1);
            }
        }
    }
    return room;
}

} // namespace

TEST(PicturePanel, caption_isLeadInAndValueAndIsReadAloud) {
    PicturePanel panel(QStringLiteral("vsColor"), PicturePanel::Place::Beside);
    panel.setCaption(QStringLiteral("Your Color is "), QStringLiteral("Black && White"));
    EXPECT_EQ(panel.caption(), QStringLiteral("Your Color is Black && White"));
    EXPECT_EQ(panel.accessibleName(), QStringLiteral("Your Color is Black & White"));
    EXPECT_EQ(panel.objectName(), QStringLiteral("vsColor"));
}

TEST(PicturePanel, picture_is60By60WhateverTheCaptionAndItsPlace) {
    for (const auto place : {PicturePanel::Place::Beside, PicturePanel::Place::Under}) {
        PicturePanel panel(QStringLiteral("panel"), place);
        panel.resize(300, panel.sizeHint().height());
        panel.setPicture(redPicture());
        const QRect alone = roomOf(panel, Qt::red);
        EXPECT_EQ(alone.size(), QSize(60, 60));
        panel.setCaption(QStringLiteral("A caption of several words that takes two lines is "),
                         QStringLiteral("this one"));
        EXPECT_EQ(roomOf(panel, Qt::red), alone);
    }
}

TEST(PicturePanel, rightToLeft_picturePlaceIsMirrored) {
    PicturePanel panel(QStringLiteral("panel"), PicturePanel::Place::Beside);
    panel.setLayoutDirection(Qt::RightToLeft);
    panel.resize(300, panel.sizeHint().height());
    panel.setPicture(redPicture());
    EXPECT_EQ(roomOf(panel, Qt::red).right(), 299);
}

TEST(PicturePanel, size_doesNotDependOnWhatItShows) {
    PicturePanel panel(QStringLiteral("panel"), PicturePanel::Place::Under);
    const QSize blank = panel.sizeHint();
    panel.setCaption(QString(500, u'c'), QString(500, u'v'));
    panel.setPicture(redPicture());
    EXPECT_EQ(panel.sizeHint(), blank);
    EXPECT_EQ(panel.minimumSizeHint(), blank);
}

TEST(PicturePanel, withoutAPicture_itsPlaceIsMarkedUnlessToldOtherwise) {
    PicturePanel panel(QStringLiteral("panel"), PicturePanel::Place::Beside);
    panel.resize(300, panel.sizeHint().height());
    const QImage marked = panel.grab().toImage();
    panel.setPlaceMarked(false);
    const QImage blank = panel.grab().toImage();
    EXPECT_NE(marked, blank);
    EXPECT_EQ(blank.pixelColor(30, 30), blank.pixelColor(200, 30));
}

TEST(PicturePanel, valueStandsOut) {
    PicturePanel panel(QStringLiteral("panel"), PicturePanel::Place::Beside);
    panel.resize(300, panel.sizeHint().height());
    panel.setCaption(QStringLiteral("North"), QString());
    const QImage plain = panel.grab().toImage();
    panel.setCaption(QString(), QStringLiteral("North"));
    EXPECT_NE(panel.grab().toImage(), plain);
}

TEST(PicturePanel, largerLetters_takeMoreRoomInTheWindow) {
    QWidget window;
    auto* rows = new QVBoxLayout(&window);
    auto* panel = new PicturePanel(QStringLiteral("panel"), PicturePanel::Place::Under);
    rows->addWidget(panel);
    const int before = rows->sizeHint().height();
    QFont large = panel->font();
    large.setPointSizeF(3 * large.pointSizeF());
    panel->setFont(large);
    EXPECT_GT(rows->sizeHint().height(), before);
}
