#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/// Watches the folder of the records: what each action changed there, and whether it was called for.
class RecordWatch {
public:
    explicit RecordWatch(QString folder);

    /// Takes the folder as it is for what it should be.
    void trust();
    /// Compares the folder with what it was. Fails where a file changed that the control has nothing to do
    /// with, where a save touched more than its record, where keys come twice or point nowhere, and where
    /// any other file than the records changed. Gives the names of the record files that changed.
    QStringList changesBy(const QString& control);
    /// The keys of the records of a file that the last change added or altered.
    [[nodiscard]] QStringList touched(const QString& file) const { return touched_.value(file); }
    /// Fails where a file that is no record file differs from what it was at first.
    void expectOthersUntouched() const;

private:
    using Row = QMap<QString, QString>;
    /// The rows of a file by their keys.
    using Rows = QMap<QString, Row>;

    [[nodiscard]] QByteArray read(const QString& name) const;
    void expectSoundReferences(const QString& control);
    void compare(const QString& file, const Rows& before, const Rows& now, const QString& control);

    QString folder_;
    QMap<QString, QByteArray> contents_;
    QMap<QString, Rows> rows_;
    QMap<QString, QByteArray> others_;
    QMap<QString, QStringList> touched_;
    QStringList strayFloors_;
};
