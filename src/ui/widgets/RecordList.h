#pragma once

#include <QComboBox>

/// A list of records in whose closed field the chosen record's name can be edited. What is typed chooses
/// nothing and adds nothing to the list, whether or not it stands there: two records may share a name, and a
/// renamed one must not turn into its namesake. The wheel scrolls the window and never changes the record.
class RecordList final : public QComboBox {
    Q_OBJECT

public:
    explicit RecordList(QWidget* parent = nullptr);

    /// Opens the list at the record whose name stands in the field.
    void showPopup() override;

Q_SIGNALS:
    /// An entry was chosen, by the user (also the same one again) or by the program; or the choice was taken
    /// back.
    void chosen();
    /// The user changed the text.
    void textTyped();
    /// The list is about to open.
    void dropDown();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] int entryOfText() const;

    /// Whether `chosen` was told since the user's present action began.
    bool told_ = false;
};
