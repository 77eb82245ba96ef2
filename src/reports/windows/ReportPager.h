#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QPushButton;
class ReportStrip;
class ReportSurface;

/// What the buttons "+" and "-" of a report window do to its surface.
struct ZoomSteps {
    void (*plus)(ReportSurface&) = nullptr;
    void (*minus)(ReportSurface&) = nullptr;

    /// Round the five zoom modes. The two directions are not each other's inverse: from the percentage, "-"
    /// goes to two pages and not to the whole page.
    [[nodiscard]] static ZoomSteps throughModes();

    /// Ten percent at a time, from 10 to 100.
    [[nodiscard]] static ZoomSteps byTens();
};

/// The labels under which a window's routines report failures. Where a window has none, failures of that
/// routine are passed over.
struct ReportLabels {
    QString plus;
    QString minus;
    QString next;
    QString previous;
    QString print;
    QString saveAs;
};

/// The zoom, paging, print and save steps that all report windows share. It works on one surface and on the
/// strip of controls below it. The state of paging lies on the surface.
class ReportPager final : public QObject {
public:
    /// `surface` and `strip` must outlive the pager.
    ReportPager(ReportSurface& surface, ReportStrip& strip, const ZoomSteps& zoom,
                const ReportLabels& labels);

    /// Writes the page label from the surface.
    void UpdatePageLabel();

    /// Label and paging buttons for a document that was just written: the surface stands on page 1.
    void showFirstPage();

    /// Label and paging buttons for the page that the user chose on the preview itself.
    void showChosenPage();

    void cmdNext_Click();
    void cmdPrev_Click();
    void cmdPlus_Click();
    void cmdMinus_Click();

    /// Prints the finished document if the user confirms the print dialog. Nothing is written anew.
    void print();

    /// Asks for a file name and runs `write` while the surface exports to it. The answer is not tested: an
    /// empty one, as from a cancelled box, has `write` run without a file.
    void saveAsHtml(const std::function<void()>& write);

private:
    void run(const QString& label, const std::function<void()>& body);
    /// Disables a paging button at its end of the document and enables the other one.
    void turned(QPushButton* button, QPushButton* other, bool atEnd);

    ReportSurface& surface_;
    ReportStrip& strip_;
    ZoomSteps zoom_;
    ReportLabels labels_;
};
