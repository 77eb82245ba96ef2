// Whether every text of every window, of its menus, of the boxes and of tool tips can be told from what it
// stands on, in the light theme and in the dark one.

#include "pictures/DarkPalette.h"
#include "pictures/WindowTour.h"
#include "support/TextColors.h"
#include "ui/StateTour.h"
#include "ui/frmViewTest.h"
#include "ui/widgets/ColorContrast.h"

#include <QStyleFactory>
#include <QToolTip>

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
        const auto look = [](QWidget& window, const QString& name) {
            SCOPED_TRACE(qPrintable(name));
            expectLegibleTexts(window, 3);
            for (auto* menu : window.findChildren<QMenu*>()) {
                expectLegibleMenu(*menu);
            }
        };
        visitWindows(*view_, look);
        visitStates(*view_, look);
        visitBoxes([](QWidget& box, const QString& /*name*/) { expectLegibleTexts(box, 2); });
        expectLegibleToolTip();
    }

private:
    /// A menu as it opens, with one of its entries under the mouse.
    static void expectLegibleMenu(QMenu& menu) {
        SCOPED_TRACE(qPrintable(menu.objectName()));
        menu.resize(menu.sizeHint());
        for (QAction* entry : menu.actions()) {
            if (entry->isEnabled() && !entry->isSeparator()) {
                menu.setActiveAction(entry);
                expectLegibleTexts(menu, 1);
                return;
            }
        }
    }
    void expectLegibleToolTip() {
        QToolTip::showText(view_->mapToGlobal(QPoint(9, 9)), QStringLiteral("What a tool tip tells"),
                           view_.get());
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == u"qtooltip_label" && window->isVisible()) {
                expectLegibleTexts(*window, 1);
                QToolTip::hideText();
                return;
            }
        }
        ADD_FAILURE() << "no tool tip came";
    }
    /// Whether what is painted there cannot be used now, and so may stand back.
    static bool isOff(const QWidget& window, QPoint place) {
        if (const auto* menu = qobject_cast<const QMenu*>(&window); menu != nullptr) {
            const QAction* entry = menu->actionAt(place);
            return entry != nullptr && !entry->isEnabled();
        }
        const QWidget* owner = window.childAt(place);
        return owner != nullptr && !owner->isEnabled();
    }
    static void expectLegibleTexts(QWidget& window, int atLeast) {
        constexpr double least = 4.5;
        constexpr int around = 4; // so that a single letter does not hide what it stands on
        QImage picture(window.size(), QImage::Format_RGB32);
        window.render(&picture);
        int texts = 0;
        for (const PaintedText& text : TextRecorder::textsOf(window)) {
            const QRect place = text.place.toAlignedRect() & picture.rect();
            if (place.isEmpty() || text.text.trimmed().isEmpty() || isOff(window, place.center())) {
                continue;
            }
            ++texts;
            const QColor ground = groundOf(picture, place.adjusted(-around, 0, around, 0) & picture.rect());
            EXPECT_GE(ColorContrast::ratio(text.color, ground), least)
                << qPrintable(text.text) << ": " << qPrintable(text.color.name()) << " on "
                << qPrintable(ground.name()) << " at " << place.x() << ", " << place.y();
        }
        EXPECT_GE(texts, atLeast);
    }
};

} // namespace

TEST_F(TextContrastTest, everyTextOfEveryWindow_isLegibleInTheLightTheme) {
    expectLegible(QApplication::style()->standardPalette());
}

TEST_F(TextContrastTest, everyTextOfEveryWindow_isLegibleInTheDarkTheme) {
    expectLegible(darkPalette());
}
