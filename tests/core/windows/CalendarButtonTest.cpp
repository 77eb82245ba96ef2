#include "core/windows/CalendarButton.h"

#include <QImage>
#include <gtest/gtest.h>

namespace {

class CalendarButtonTest : public testing::Test {
protected:
    CalendarButton button_{QStringLiteral("cmdDate")};

    static QImage picture(QWidget& widget) {
        widget.resize(40, 30);
        return widget.grab().toImage();
    }
};

} // namespace

TEST_F(CalendarButtonTest, button_isNamedAndLeavesEnterToTheWindow) {
    EXPECT_EQ(button_.objectName(), QStringLiteral("cmdDate"));
    EXPECT_FALSE(button_.accessibleName().isEmpty());
    EXPECT_FALSE(button_.toolTip().isEmpty());
    EXPECT_FALSE(button_.autoDefault());
}

TEST_F(CalendarButtonTest, sign_isDrawnInTheTextsColour) {
    QPushButton plain;
    EXPECT_NE(picture(button_), picture(plain));
    const QImage onLight = picture(button_);
    QPalette palette = button_.palette();
    palette.setColor(QPalette::ButtonText, Qt::red);
    button_.setPalette(palette);
    EXPECT_NE(picture(button_), onLight);
}
