#include "reports/windows/PreviewWidget.h"
#include "ui/RoomEditorTest.h"
#include "ui/frmRoom.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

namespace {

constexpr qint32 kitchen = 1;

class frmRoomReportTest : public RoomEditorTest {
protected:
    static QImage shown(QWidget& window) {
        return control<PreviewWidget>(window, "vpPrint").viewport()->grab().toImage();
    }
    static QString pageLabel(QWidget& window) { return control<QLabel>(window, "lblPageCount").text(); }
    void expectSaveBox(const QString& answer) {
        world_.prompts.expectInput(u"Save to HTML"_s,
                                   u"Please enter a fully qualified html filename to save the report to."_s,
                                   world_.folder() + QDir::separator() + u"Temp.html"_s, answer);
    }
};

} // namespace

TEST_F(frmRoomReportTest, openedRoom_showsItsAdviceAsAWholePage) {
    open(kitchen, [](QWidget& window) {
        EXPECT_EQ(pageLabel(window), u"Page 1 of 1"_s);
        auto& preview = control<PreviewWidget>(window, "vpPrint");
        EXPECT_EQ(preview.plan().pages.size(), 1U);
        EXPECT_TRUE(preview.viewport()->rect().contains(preview.pageArea(0)));
        EXPECT_FALSE(enabled(window, "cmdNext"));
        EXPECT_FALSE(enabled(window, "cmdPrev"));
    });
}

TEST_F(frmRoomReportTest, changes_leaveTheReportAloneUntilASave) {
    open(kitchen, [](QWidget& window) {
        const QImage before = shown(window);
        pick(window, "cboLocation", u"West"_s);
        check(window, "chkEntrance");
        EXPECT_EQ(shown(window), before);
        click(window, "cmdOK");
        EXPECT_NE(shown(window), before);
    });
}

TEST_F(frmRoomReportTest, zoom_worksAsInTheOtherReportWindows) {
    open(kitchen, [](QWidget& window) {
        auto& preview = control<PreviewWidget>(window, "vpPrint");
        const QSize whole = preview.pageArea(0).size();
        click(window, "cmdPlus");
        EXPECT_GT(preview.pageArea(0).width(), whole.width());
        for (int i = 0; i < 4; ++i) {
            click(window, "cmdPlus");
        }
        EXPECT_EQ(preview.pageArea(0).size(), whole);
    });
}

TEST_F(frmRoomReportTest, print_sendsTheReportOnTheScreen) {
    open(kitchen, [this](QWidget& window) {
        type(window, "txtDescription", u"Galley"_s);
        click(window, "cmdPrint");
        EXPECT_EQ(world_.printer.dialogs, 1);
        EXPECT_EQ(world_.printer.printedDocuments, 1);
        EXPECT_EQ(world_.printer.printedPages, 1);
        EXPECT_EQ(stored(kitchen, "DESCRIPTION"), u"Kitchen"_s);
        world_.printer.accept = false;
        choose(window, "mnuFile", "mnuFilePrint");
        EXPECT_EQ(world_.printer.dialogs, 2);
        EXPECT_EQ(world_.printer.printedDocuments, 1);
        expectCloseQuestion(MessageAnswer::No);
    });
}

TEST_F(frmRoomReportTest, printThatFails_isReportedUnderTheMenusLabel) {
    Services services = Global::services();
    services.printer = nullptr;
    Global::use(services);
    world_.prompts.expectError(u"frmRoom.mnuFilePrint_Click"_s, 91,
                               u"Object variable or With block variable not set"_s);
    open(kitchen, [](QWidget& window) { click(window, "cmdPrint"); });
}

TEST_F(frmRoomReportTest, saveAsHtml_writesTheStoredRoomsReport) {
    expectSaveBox(world_.file(u"room.html"_s));
    open(kitchen, [this](QWidget& window) {
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_EQ(pageLabel(window), u"Page 1 of 1"_s);
    });
    const QByteArray html = world_.read(u"room.html"_s);
    EXPECT_TRUE(html.startsWith("<!DOCTYPE html>"));
    EXPECT_TRUE(html.contains("Kitchen"));
    EXPECT_TRUE(html.contains("The location of this room is to the South-East"));
}

TEST_F(frmRoomReportTest, saveAsHtml_isNotRepeatedByTheNextSave) {
    expectSaveBox(world_.file(u"room.html"_s));
    open(kitchen, [this](QWidget& window) {
        choose(window, "mnuFile", "mnuFileSaveAs");
        world_.remove(u"room.html"_s);
        click(window, "cmdOK");
    });
    EXPECT_FALSE(QFile::exists(world_.file(u"room.html"_s)));
}

TEST_F(frmRoomReportTest, saveAsHtmlCancelled_writesNoFile) {
    const QStringList before = QDir(world_.folder()).entryList(QDir::Files);
    expectSaveBox({});
    open(kitchen, [](QWidget& window) { choose(window, "mnuFile", "mnuFileSaveAs"); });
    EXPECT_EQ(QDir(world_.folder()).entryList(QDir::Files), before);
}

TEST_F(frmRoomReportTest, saveAsHtmlToAFolderThatIsNotThere_isReportedOnce) {
    expectSaveBox(world_.file(u"missing folder/room.html"_s));
    world_.prompts.expectError(u"cRoom.Analyze Room"_s, 76);
    open(kitchen, [](QWidget& window) {
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_EQ(pageLabel(window), u"Page 1 of 1"_s);
    });
}

TEST_F(frmRoomReportTest, openingAndSaving_showTheHourglassAndPutThePointerBack) {
    open(kitchen, [this](QWidget& window) {
        const QList<PointerShape> once{PointerShape::Hourglass, PointerShape::Default};
        EXPECT_EQ(world_.prompts.pointerHistory(), once);
        click(window, "cmdOK");
        EXPECT_EQ(world_.prompts.pointerHistory(), once + once);
    });
}

TEST_F(frmRoomReportTest, compass_opensTheCompassOverTheRoom) {
    open(kitchen, [](QWidget& window) {
        whileModal([&] { click(window, "cmdCompass"); },
                   [](QWidget& compass) { EXPECT_EQ(compass.objectName(), u"frmRoomDirection"_s); });
        EXPECT_TRUE(window.isVisible());
    });
}
