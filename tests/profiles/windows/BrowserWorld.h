#pragma once

#include "core/Global.h"
#include "profiles/cProfile.h"
#include "profiles/windows/frmElements.h"
#include "profiles/windows/frmProfiles.h"
#include "reports/windows/PreviewWidget.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/TitleBand.h"

#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <gtest/gtest.h>

/// A printer that keeps the pages as pictures and lets a test look at the window meanwhile.
class PicturingPrinter final : public Printer {
public:
    bool accept = true;
    std::vector<QImage> pages;
    std::function<void()> whileChoosing;

    bool choose() override {
        if (whileChoosing) {
            whileChoosing();
        }
        return accept;
    }
    void print(const PrintableDocument& document) override {
        constexpr double scale = 0.05;
        for (qint32 page = 0; page < document.pageCount; ++page) {
            QImage picture((document.pageSize * scale).toSize(), QImage::Format_RGB32);
            picture.fill(Qt::white);
            QPainter painter(&picture);
            painter.scale(scale, scale);
            document.paint(painter, page);
            pages.push_back(picture);
        }
    }
};

/// A household of three people, the last one of the black colour, and the two browsers over it.
class BrowserWorld : public testing::Test {
protected:
    TestWorld world_{TestWorld::Records::Sample};
    PicturingPrinter printer_;
    const QString defaultFile_ = world_.folder() + QDir::separator() + QStringLiteral("Temp.html");

    void SetUp() override {
        QByteArrayList people = recordLines(world_.read(QStringLiteral("Profiles.xml")));
        people << R"(<z:row PROFILEID="7" PROFILENAME="Cleo &amp; Co" BIRTHDATE="1980-07-01T00:00:00")"
                  R"( ADJBIRTHYEAR="1980" GENDER="M" KUANUMBER="2" />)";
        world_.write(QStringLiteral("Profiles.xml"), recordFile(people));
        Services services = Global::services();
        services.printer = &printer_;
        Global::use(services);
        Global::CurrentProfile = std::make_unique<cProfile>();
        Global::CurrentProfile->GetProfile(2);
    }
    void TearDown() override { Global::CurrentProfile.reset(); }

    template<class Browser>
    static void show(const std::function<void(QWidget&)>& inside) {
        Browser window;
        WindowDriver::whileModal([&] { window.ShowModal(); }, inside);
        EXPECT_FALSE(window.isVisible());
    }
    static void showProfiles(const std::function<void(QWidget&)>& inside) { show<frmProfiles>(inside); }
    static void showElements(const std::function<void(QWidget&)>& inside) { show<frmElements>(inside); }

    static QString pageLabel(QWidget& window) {
        return WindowDriver::control<QLabel>(window, "lblPageCount").text();
    }
    static QString title(QWidget& window) {
        return WindowDriver::control<TitleBand>(window, "vsTop").caption();
    }
    /// Chooses an entry as a user does from the keyboard: by its first letter.
    static void pick(QWidget& window, const char* list, Qt::Key letter) {
        auto& combo = WindowDriver::control<QComboBox>(window, list);
        combo.setFocus();
        QTest::keyClick(&combo, letter);
    }
    static const PreviewWidget& report(QWidget& window) {
        return WindowDriver::control<PreviewWidget>(window, "vpReport");
    }
    static const PreviewWidget& compass(QWidget& window) {
        return WindowDriver::control<PreviewWidget>(window, "vpCompass");
    }
    /// The words of the page that a pane shows.
    static QString words(const PreviewWidget& pane) { return pane.accessibleDescription(); }

    /// The colour that a pane shows at a place of its page, in twips.
    static QColor shownAt(QWidget& window, const char* pane, QPointF twips) {
        auto& preview = WindowDriver::control<PreviewWidget>(window, pane);
        preview.horizontalScrollBar()->setValue(0);
        const QRect paper = preview.pageArea(preview.plan().pages.at(0).page);
        const QPoint place = paper.topLeft() + (twips * preview.plan().scale).toPoint();
        return preview.viewport()->grab().toImage().pixelColor(place);
    }
    /// Where the band is, free of text, and where the page shows its own ground.
    static QColor bandOf(QWidget& window) { return shownAt(window, "vpReport", {900, 700}); }
    static QColor groundOf(QWidget& window) { return shownAt(window, "vpReport", {300, 300}); }
    static QColor stored(qint32 value) { return ColorContrast::fromStored(value); }

    void expectSaveBox(const QString& answer) {
        world_.prompts.expectInput(
            QStringLiteral("Save to HTML"),
            QStringLiteral("Please enter a fully qualified html filename to save the report to."),
            defaultFile_, answer);
    }
};
