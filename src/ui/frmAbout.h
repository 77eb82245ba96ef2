#pragma once

#include <QDialog>

class QLabel;

/// The about box: title, version and legal lines, all from the version record.
class frmAbout final : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent = nullptr);

    /// Shows the box modally and comes back when it is closed.
    void ShowAbout();

private:
    QLayout* buildTitle();
    void Form_Load();
    void Form_Unload();
    void cmdOK_Click();

    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblDescription = nullptr;
    QLabel* lblDisclaimer = nullptr;
};
