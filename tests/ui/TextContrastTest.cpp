// Whether every text of every window can be told from what it stands on, in the light theme and in the dark
// one.

#include "pictures/DarkPalette.h"
#include "pictures/WindowTour.h"
#include "support/TextColors.h"
#include "ui/frmViewTest.h"
#include "ui/widgets/ColorContrast.h"

#include <QStyleFactory>

namespace {

class TextContrastTest : public frmViewTest {
protected:
    void TearDown() override {
        frmViewTest::TearDown();
        QApplication::setPalette(QPalette());
    }
    /// Looks at all windows in these colours.
    void expectLegible(const QPalette& colors) {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QApplication::setPalette(ColorContrast::legibleSelection(colors).resolve(colors));
        world_.prompts.expectMessage(QStringLiteral("Close"),
                                     QStringLiteral("Would you like to save your changes before closing?"),
                                     MessageIcon::Question, MessageAnswer::No);
        Global::Main();
        visitWindows(*view_, [](QWidget& window, const QString& name) {
            SCOPED_TRACE(qPrintable(name));
            expectLegibleWindow(window);
        });
    }

private:
    static void expectLegibleWindow(QWidget& window) {
        constexpr double least = 4.5;
        constexpr int around = 4; // so that a single letter does not hide what it stands on
        QImage picture(window.size(), QImage::Format_RGB32);
        window.render(&picture);
        int texts = 0;
        for (const PaintedText& text : TextRecorder::textsOf(window)) {
            const QRect place = text.place.toAlignedRect() & picture.rect();
            const QWidget* owner = window.childAt(place.center());
            if (place.isEmpty() || text.text.trimmed().isEmpty() ||
                (owner != nullptr && !owner->isEnabled())) {
                continue; // what cannot be used now may stand back
            }
            ++texts;
            const QColor ground = groundOf(picture, place.adjusted(-around, 0, around, 0) & picture.rect());
            EXPECT_GE(ColorContrast::ratio(text.color, ground), least)
                << qPrintable(text.text) << ": " << qPrintable(text.color.name()) << " on "
                << qPrintable(ground.name()) << " in "
                << (owner == nullptr ? "" : qPrintable(owner->objectName()));
        }
        EXPECT_GE(texts, 3);
    }
};

} // namespace

TEST_F(TextContrastTest, everyTextOfEveryWindow_isLegibleInTheLightTheme) {
    expectLegible(QApplication::style()->standardPalette());
}

TEST_F(TextContrastTest, everyTextOfEveryWindow_isLegibleInTheDarkTheme) {
    expectLegible(darkPalette());
}
