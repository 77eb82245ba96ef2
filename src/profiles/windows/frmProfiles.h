#pragma once

#include "profiles/windows/ReportBrowser.h"

class cProfile;

/// The browser of people.
class frmProfiles final : public ReportBrowser {
    Q_OBJECT

public:
    explicit frmProfiles(QWidget* parent = nullptr);
    ~frmProfiles() override;

private:
    cXMLHandler& records() override;
    [[nodiscard]] qint32 currentKey() const override;
    void get(qint32 key) override;
    [[nodiscard]] QString shownName() override;
    [[nodiscard]] const cColor& shownColor() override;
    void DrawCompass(ReportSurface& vp, qint32 x, qint32 y) override;
    void GenerateReport(ReportSurface& vp, bool ToPrint) override;

    void vpReport_NewPage();
    /// The window's own record, made on first use.
    [[nodiscard]] cProfile& person();

    std::unique_ptr<cProfile> person_;
};
