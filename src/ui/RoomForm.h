#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;

/// The form column of the room editor: the facts of a room, each in its control. It holds controls only and
/// knows no rule about them.
class RoomForm final : public QWidget {
    Q_OBJECT

public:
    /// An extent as the user enters it, in two fields.
    struct Extent {
        QLineEdit* feet = nullptr;
        QLineEdit* inches = nullptr;
    };

    explicit RoomForm(QWidget* parent = nullptr);

    QLineEdit* txtDescription = nullptr;
    QComboBox* cboRoomType = nullptr;
    QComboBox* cboFloors = nullptr;
    QComboBox* cboLocation = nullptr;
    QComboBox* cboFlooring = nullptr;
    /// `txtLengthFt` and `txtLengthIn`.
    Extent length;
    /// `txtWidthFt` and `txtWidthIn`.
    Extent width;
    QCheckBox* chkLowCeiling = nullptr;
    QCheckBox* chkExposedBeams = nullptr;
    QCheckBox* chkEntrance = nullptr;

Q_SIGNALS:
    /// The content of one of the controls has changed, by the user or by the program.
    void edited();

private:
    struct Field;

    void addRow(QFormLayout& rows, const Field& field, QWidget* control, QWidget* buddy);
    QLineEdit* addText(QFormLayout& rows, const Field& field);
    QComboBox* addList(QFormLayout& rows, const Field& field);
    Extent addExtent(QFormLayout& rows, const QString& word);
    QCheckBox* addCheck(QFormLayout& rows, const Field& field);
    [[nodiscard]] QLineEdit* makeText(const Field& field);
};
