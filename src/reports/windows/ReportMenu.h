#pragma once

#include <QString>

#include <functional>

class QDialog;

/// What the entries of a report window's menu run.
struct ReportMenuHandlers {
    std::function<void()> print;
    std::function<void()> saveAs;
    std::function<void()> close;
};

/// Gives a report window its menu "File": print, save as HTML and close, the last under a name of its own.
/// The window needs its layout by then.
void addReportMenu(QDialog& window, const QString& closeName, const ReportMenuHandlers& handlers);
