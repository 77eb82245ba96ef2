#pragma once

#include "reports/windows/CompassReportWindow.h"

class ComboList;
class QComboBox;
class cColor;
class cXMLHandler;

/// Picks a record in a list and shows its compass and its report. What is listed and who writes about it is
/// the affair of the window made of it.
class ReportBrowser : public CompassReportWindow {
    Q_OBJECT

public:
    ~ReportBrowser() override;

    /// Shows the window modally, at the record of the current person.
    void ShowModal();

protected:
    /// What a browser is called and says.
    struct Texts {
        /// The window's name and caption.
        QString name;
        QString caption;
        /// The list and its label.
        QString listName;
        QString labelName;
        QString label;
        /// What the window is about.
        QString info;
        /// The fields of a record that the list shows and finds it by.
        QString nameField;
        QString keyField;
        /// The routine that fills the list, as failures name it, and the whole label of saving.
        QString fillRoutine;
        QString saveAsLabel;
    };

    ReportBrowser(const Texts& texts, QWidget* parent);

    /// True while a document for the printer or a file is being written.
    [[nodiscard]] bool isPrinting() const { return printing; }

private:
    /// The records that are listed.
    virtual cXMLHandler& records() = 0;
    /// The key of the current person's record.
    [[nodiscard]] virtual qint32 currentKey() const = 0;
    /// Reads a record, the one that the four below are about.
    virtual void get(qint32 key) = 0;
    [[nodiscard]] virtual QString shownName() = 0;
    [[nodiscard]] virtual const cColor& shownColor() = 0;
    virtual void DrawCompass(ReportSurface& vp, qint32 x, qint32 y) = 0;
    virtual void GenerateReport(ReportSurface& vp, bool ToPrint) = 0;

    void Form_Load();
    void fill();
    void list_Click();
    void writeReport(bool toPrint);
    void mnuFilePrint_Click() override;
    void mnuFileSaveAs_Click() override;

    Texts texts_;
    QComboBox* combo_ = nullptr;
    std::unique_ptr<ComboList> list_;
    bool printing = false;
};
