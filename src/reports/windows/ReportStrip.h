#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;

/// The quiet strip under the page of a report window: zoom on the left, paging in the middle, and room for
/// the window's own buttons on the right. It holds controls only; `ReportPager` gives them their sense.
class ReportStrip final : public QWidget {
    Q_OBJECT

public:
    /// `pageLabel` is the page label's text before there is a document.
    explicit ReportStrip(const QString& pageLabel, QWidget* parent = nullptr);

    /// Adds a button of the window at the right end. Enter does not press it, unless it is made the default.
    QPushButton* addButton(const QString& name, const QString& caption);

    QPushButton* cmdMinus = nullptr;
    QPushButton* cmdPlus = nullptr;
    QPushButton* cmdPrev = nullptr;
    QPushButton* cmdNext = nullptr;
    QLabel* lblPageCount = nullptr;

private:
    QHBoxLayout* buttons_ = nullptr;
};
