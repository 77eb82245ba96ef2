#include "ui/widgets/SvgIcon.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class SvgIconTest : public testing::Test {
protected:
    /// A picture whose left half is red and whose right half is empty.
    QString picture() {
        const QString path = folder_.filePath(QStringLiteral("half.svg"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"(<svg xmlns="http://www.w3.org/2000/svg" width="60" height="60" viewBox="0 0 60 60">)"
                   R"(<rect width="30" height="60" fill="#FF0000"/></svg>)");
        return path;
    }

    QTemporaryDir folder_;
};

TEST_F(SvgIconTest, pixmap_isSharpAtItsOwnSizeAndResolution) {
    const QIcon icon = svgIcon(picture());
    const QPixmap doubled = icon.pixmap(QSize(32, 32), 2);
    EXPECT_EQ(doubled.size(), QSize(64, 64));
    EXPECT_EQ(doubled.devicePixelRatio(), 2);
    const QImage image = doubled.toImage();
    EXPECT_EQ(image.pixelColor(31, 10), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(32, 10).alpha(), 0);
}

TEST_F(SvgIconTest, paint_fillsTheRectangleThatItIsGiven) {
    QImage page(40, 40, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::white);
    QPainter painter(&page);
    svgIcon(picture()).paint(&painter, QRect(10, 10, 20, 20));
    painter.end();
    EXPECT_EQ(page.pixelColor(12, 12), QColor(Qt::red));
    EXPECT_EQ(page.pixelColor(27, 12), QColor(Qt::white));
    EXPECT_EQ(page.pixelColor(5, 5), QColor(Qt::white));
}

TEST_F(SvgIconTest, copy_paintsTheSamePicture) {
    const QIcon copy = svgIcon(picture());
    QIcon other = copy;
    EXPECT_FALSE(other.isNull());
    EXPECT_EQ(other.pixmap(QSize(8, 8)).toImage().pixelColor(1, 1), QColor(Qt::red));
}

} // namespace
