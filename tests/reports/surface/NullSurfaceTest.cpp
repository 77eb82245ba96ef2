#include "reports/surface/NullSurface.h"

#include <gtest/gtest.h>

TEST(NullSurface, properties_readBackWhatWasWritten) {
    NullSurface vp;
    vp.CurrentX(1440.5);
    vp.CurrentY(2500);
    vp.BrushColor(0x8080FF);
    vp.Zoom(78);
    vp.ZoomMode(4);
    vp.PreviewPage(3);
    EXPECT_EQ(vp.CurrentX(), 1440.5);
    EXPECT_EQ(vp.CurrentY(), 2500);
    EXPECT_EQ(vp.BrushColor(), 0x8080FF);
    EXPECT_EQ(vp.Zoom(), 78);
    EXPECT_EQ(vp.ZoomMode(), 4);
    EXPECT_EQ(vp.PreviewPage(), 3);
}

TEST(NullSurface, properties_beforeAnyWriteAreZero) {
    const NullSurface vp;
    EXPECT_EQ(vp.CurrentY(), 0);
    EXPECT_EQ(vp.Zoom(), 0);
    EXPECT_FALSE(vp.property(SurfaceProperty::Header).isValid());
}

TEST(NullSurface, document_hasNoPagesAndMovesNothing) {
    NullSurface vp;
    int events = 0;
    vp.onNewPage = [&] { ++events; };
    vp.onFooter = [&] { ++events; };
    vp.StartDoc();
    vp.CurrentY(100);
    vp.Write(QStringLiteral("text"));
    vp.Write(7);
    vp.TextBox(QStringLiteral("text"), 0, 0, 5000, 0);
    vp.DrawCircle(0, 0, 1);
    vp.DrawCircle(0, 0, 1, 0, 1);
    vp.DrawRectangle(0, 0, 1, 1);
    vp.NewPage();
    vp.EndDoc();
    EXPECT_EQ(vp.PageCount(), 0);
    EXPECT_EQ(vp.CurrentY(), 100);
    EXPECT_EQ(events, 0);
    EXPECT_GT(vp.PageHeight(), 0);
    EXPECT_FALSE(vp.PrintDialog(0));
    EXPECT_EQ(vp.FontFace(), QStringLiteral("Arial"));
}
