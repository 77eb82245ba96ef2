#pragma once

#include <QIcon>
#include <QObject>
#include <QString>
#include <QStringList>

/// A list of 60 by 60 pictures under text keys, compiled into the program and drawn as sharp as any screen
/// can show them. A picture's key is the name that the reference tables give to what it shows.
class PictureList final : public QObject {
    Q_OBJECT

public:
    /// The list's name, for example "ilTODs"; its pictures lie in the folder of that name without "il".
    explicit PictureList(const QString& name, QObject* parent = nullptr);

    [[nodiscard]] QStringList keys() const;

    /// The picture of a key, which must be spelt as in the list; fails with error 35601 where there is none.
    [[nodiscard]] QIcon picture(const QString& key) const;

private:
    QString folder_;
};
