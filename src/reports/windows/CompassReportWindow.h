#pragma once

#include "reports/pages/PageSurface.h"
#include "reports/windows/ReportPager.h"

#include <QDialog>

#include <memory>
#include <optional>

class PreviewWidget;
class QLayout;
class QPushButton;

class ReportStrip;
class TitleBand;

/// What the windows of a compass and its report have in common: the band with the title, the window's own
/// controls under it, compass and report side by side, and at the bottom zoom, paging, print and close. The
/// window itself writes the two documents and knows what print and save mean for them.
class CompassReportWindow : public QDialog {
    Q_OBJECT

public:
    CompassReportWindow(const CompassReportWindow&) = delete;
    CompassReportWindow& operator=(const CompassReportWindow&) = delete;
    ~CompassReportWindow() override;

protected:
    /// `name` is the window's, under which its placement is stored and its routines report failures.
    CompassReportWindow(const QString& name, QWidget* parent);

    /// Builds the window around its own controls, which come under the band and which Tab visits first, in
    /// the order in which they were made. A failure of saving has a label of its own. To be called once,
    /// by the window's constructor, before anything below is used.
    void buildAround(QLayout* choices, const QString& saveAsLabel);

    /// The title in the band.
    void setTitle(const QString& caption);
    /// The title's ground, a stored colour; nothing for paper grey.
    void setAccent(std::optional<qint32> color);

    /// Offers to print and to save, or does not.
    void setPrintable(bool printable);

    /// Puts the window where it was left.
    void restore();
    /// Shows the window until the user closes it, and stores where it stood.
    void showUntilClosed();

    /// The label of one of the window's routines.
    [[nodiscard]] QString label(const QString& routineName) const;

    [[nodiscard]] PageSurface& compass() { return compass_; }
    [[nodiscard]] PageSurface& report() { return report_; }
    [[nodiscard]] ReportPager& pager() { return *pager_; }
    [[nodiscard]] ReportStrip& strip() { return *strip_; }
    [[nodiscard]] QPushButton& closeButton() { return *cmdClose; }

private:
    virtual void mnuFilePrint_Click() = 0;
    virtual void mnuFileSaveAs_Click() = 0;
    void mnuFileClose_Click();
    void cmdPrint_Click();
    void cmdClose_Click();

    QWidget* buildPanes();
    /// What the compass needs to be seen whole, however narrow the window.
    [[nodiscard]] int compassWidth() const;
    QWidget* buildStrip();
    PreviewWidget* buildPane(const QString& name, const QString& accessibleName, PageSurface& surface);

    PageSurface compass_;
    PageSurface report_;
    TitleBand* vsTop = nullptr;
    PreviewWidget* vpCompass = nullptr;
    PreviewWidget* vpReport = nullptr;
    ReportStrip* strip_ = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdClose = nullptr;
    std::unique_ptr<ReportPager> pager_;
};
