#pragma once

#include "core/clsCalendar.h"
#include "reports/windows/CompassReportWindow.h"

#include <array>

class ElidedLabel;
class QComboBox;
class QLabel;
class QLineEdit;
class QTabWidget;

/// The one window for three kinds of advice to the current person: on moving, on renovation and on the chart
/// of a year. One of its public routines opens it in one of the modes; date and direction are forgotten when
/// it closes.
///
/// Two facts of its paging are deliberate: writing a report disables the paging buttons at their ends but
/// never enables them, and it leaves the page label as it was.
class frmNineKi final : public CompassReportWindow {
    Q_OBJECT

public:
    explicit frmNineKi(QWidget* parent = nullptr);
    ~frmNineKi() override;

    /// Each shows the window modally and comes back when it is closed.
    void AdviseMove();
    void AdviseRenovation();
    void AdviseYearlyChart();

private:
    struct ModeTexts;

    void buildPage(QWidget* page, QLabel* info, const QList<QWidget*>& fields, int index);
    void buildDirectionPage();
    void buildTimePage();
    void advise(const QString& routineName, const ModeTexts& texts);
    void setTabs(const QString& captions);
    void setTexts(const ModeTexts& texts);

    void Form_Load();
    void tabMoving_Switch();
    void cboDirection_Click();
    void txtMoveDate_Change();
    void cmdDate_Click();
    void cmdAdvise_Click(int Index);
    void mnuFilePrint_Click() override;
    void mnuFileSaveAs_Click() override;
    void vpReport_Footer();

    /// "MOVE", "RENOVATION" or "CHART".
    QString MoveMode;
    clsCalendar calendar_;
    ElidedLabel* lblProfile = nullptr;
    QTabWidget* tabMoving = nullptr;
    QWidget* vsDirection = nullptr;
    QLabel* lblInfo = nullptr;
    QLabel* lblMovedate = nullptr;
    QLineEdit* txtMoveDate = nullptr;
    QPushButton* cmdDate = nullptr;
    QWidget* vsTime = nullptr;
    QLabel* lblDateInfo = nullptr;
    QLabel* lblDirection = nullptr;
    QComboBox* cboDirection = nullptr;
    /// Index 0 stands on `vsDirection`, index 1 on `vsTime`.
    std::array<QPushButton*, 2> cmdAdvise{};
};
