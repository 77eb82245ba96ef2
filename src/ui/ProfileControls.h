#pragma once

#include "ui/widgets/PicturePanel.h"

#include <QColor>
#include <QString>

#include <optional>

class CaptionLabel;
class PictureList;
class ProfileTabs;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;
class QWidget;
class RecordList;
class TitleBand;

/// The controls of the profile pane: what they are called and how they are nested and laid out. They belong
/// to the pane's widget and hold no behaviour.
class ProfileControls {
public:
    /// Fills an empty pane.
    explicit ProfileControls(QWidget& pane);

    RecordList* cboProfileName = nullptr;
    QLineEdit* txtProfileName = nullptr;
    QLineEdit* txtBirthDate = nullptr;
    QPushButton* cmdDate = nullptr;
    QRadioButton* optFemale = nullptr;
    QRadioButton* optMale = nullptr;
    QLineEdit* txt9Ki = nullptr;
    QPushButton* cmdCalcProfile = nullptr;
    QPushButton* cmdNewProfile = nullptr;
    QPushButton* cmdSaveProfile = nullptr;
    QPushButton* cmdDelProfile = nullptr;
    CaptionLabel* lblAdjBirthYear = nullptr;
    TitleBand* vsTopProfile = nullptr;
    ProfileTabs* tabProfile = nullptr;

    /// A panel or a picture list by its name; fails with error 91 where there is none.
    [[nodiscard]] PicturePanel& panel(QStringView name) const;
    [[nodiscard]] const PictureList& pictures(QStringView name) const;
    [[nodiscard]] CaptionLabel& lblSummary() const;
    [[nodiscard]] CaptionLabel& lblElementDescription() const;

    /// Neither or one of the two genders.
    void showGender(bool female, bool male) const;

    /// The colour of the person on show, for the band and the pages.
    void setAccent(const std::optional<QColor>& color) const;

private:
    void addBand(QVBoxLayout& column);
    void addDetail(QVBoxLayout& column);
    QWidget* makeEntryColumn(QWidget* vsDetailProfile);
    void addFields(QWidget* parent, QGridLayout& grid);
    void addNumber(QWidget* parent, QGridLayout& grid);
    void addButtons(QVBoxLayout& column);
    void setTabOrder() const;

    QWidget& pane_;
};
