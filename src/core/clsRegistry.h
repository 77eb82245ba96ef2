#pragma once

#include "core/SettingsStore.h"

#include <QString>
#include <QVariant>

#include <optional>

/// What `DisplayTree` needs of a grid: rows of text cells separated by tabs, each with a place in an outline.
class OutlineGrid {
public:
    virtual ~OutlineGrid() = default;
    virtual void AddItem(const QString& cells) = 0;
    virtual void IsSubtotal(qint32 row, bool on) = 0;
    virtual void RowOutlineLevel(qint32 row, qint32 level) = 0;
    [[nodiscard]] virtual qint32 Rows() const = 0;
};

/// User preferences in the per-user store of settings. Every operation opens and closes its key; nothing is
/// kept between calls but the two names.
///
/// `GROUP` is the handle of a root key, of which the program knows the current user's; `Section` is a full
/// key path below it with "\" between its parts; `Key` is a value's name, "*" for the unnamed value.
class clsRegistry {
public:
    /// The root key of the current user.
    static constexpr quint32 CurrentUser = 0x80000001;
    /// The type of a text value.
    static constexpr qint32 TextType = 1;

    [[nodiscard]] QString Company() const { return company_; }
    /// An empty text brings the default back; any other is kept without the blanks around it.
    void Company(const QString& name);
    [[nodiscard]] QString AppName() const { return appName_; }
    void AppName(const QString& name);

    /// Deletes a value, or with an empty `Key` the key `Section` itself.
    bool DeleteSetting(quint32 GROUP, const QString& Section, const QString& Key);

    /// The names of the keys below `Section`; nothing when there are none.
    [[nodiscard]] std::optional<QStringList> GetAllKeys(quint32 GROUP, const QString& Section) const;

    /// The values of `Section`, each with name, type and data; nothing when there are none.
    [[nodiscard]] std::optional<QList<NamedSetting>> GetAllSettings(quint32 GROUP,
                                                                    const QString& Section) const;

    /// The text of a value, or `Default` when it is not there. Creates no key.
    [[nodiscard]] QString GetSetting(quint32 GROUP, const QString& Section, const QString& Key,
                                     const QString& Default) const;

    /// Writes a value as text; creates the key's path as needed. True when the write succeeded.
    bool SaveSetting(quint32 GROUP, const QString& Section, const QString& Key, const QVariant& Setting,
                     qint32 KeyType = TextType);

    /// Copies all values of a key, and of all keys below it, to another path.
    void CopyTree(quint32 GROUP, const QString& sSource, const QString& sDest);

    /// Adds a row for each value and key of `Section` to a grid, keys with all that is below them.
    void DisplayTree(quint32 GROUP, const QString& Section, OutlineGrid& tbl, qint32 lOutlineLevel) const;

    /// The data of one value as display text, by its type.
    [[nodiscard]] QString FormatValue(const QByteArray& vValue, qint32 nType) const;

    /// The same for data that may hold several parts, each on a line of its own.
    [[nodiscard]] QString FormatValues(const QByteArray& vValue, qint32 nType) const;

private:
    static QString defaultCompany() { return QStringLiteral("Orvenel"); }
    static QString defaultAppName() { return QStringLiteral("Talivane"); }

    QString company_ = defaultCompany();
    QString appName_ = defaultAppName();
};
