#pragma once

#include <QSplitter>

/// Panes side by side whose divider the keyboard moves as well: F8 goes to it from anywhere in the window,
/// the arrow keys, Home and End move it, and F8, Enter or Escape goes back to where the keyboard was. The
/// divider is no stop of Tab, which passes it as everywhere.
class PaneSplitter : public QSplitter {
    Q_OBJECT

public:
    explicit PaneSplitter(QWidget* parent = nullptr);

protected:
    QSplitterHandle* createHandle() override;
};
