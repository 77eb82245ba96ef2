#pragma once

#include "reports/pages/PageSurface.h"
#include "reports/windows/ReportPager.h"

#include <QDialog>

#include <memory>

class PreviewWidget;
class QAction;
class TitleBand;

/// The report of all rooms of the current home in a paged preview, with zoom, print and save as HTML. Its
/// text comes from `AnalyzeRooms` alone.
class frmPrintPreview final : public QDialog {
    Q_OBJECT

public:
    explicit frmPrintPreview(QWidget* parent = nullptr);
    frmPrintPreview(const frmPrintPreview&) = delete;
    frmPrintPreview& operator=(const frmPrintPreview&) = delete;
    ~frmPrintPreview() override;

    /// Shows the report modally and comes back when the window is closed.
    void PrintRoomReport();

private:
    void buildMenu();
    void buildControls();
    void Form_Load();
    void Form_Unload();
    void mnuFilePrint_Click();
    void mnuFileSaveAs_Click();
    void mnuFileExit_Click();
    void cmdPrint_Click();
    void cmdOK_Click();
    /// Writes the whole home's report anew and goes to its first page.
    void analyze();

    PageSurface surface_;
    TitleBand* vsTop = nullptr;
    PreviewWidget* vpPrintPreview = nullptr;
    ReportStrip* strip_ = nullptr;
    std::unique_ptr<ReportPager> pager_;
};
