#pragma once

#include "profiles/windows/ReportBrowser.h"

class cElement;

/// The browser of the five elements.
class frmElements final : public ReportBrowser {
    Q_OBJECT

public:
    explicit frmElements(QWidget* parent = nullptr);
    ~frmElements() override;

private:
    cXMLHandler& records() override;
    [[nodiscard]] qint32 currentKey() const override;
    void get(qint32 key) override;
    [[nodiscard]] QString shownName() override;
    [[nodiscard]] const cColor& shownColor() override;
    void DrawCompass(ReportSurface& vp, qint32 x, qint32 y) override;
    void GenerateReport(ReportSurface& vp, bool ToPrint) override;

    /// The window's own record, made on first use.
    [[nodiscard]] cElement& element();

    std::unique_ptr<cElement> element_;
};
