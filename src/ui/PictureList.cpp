#include "ui/PictureList.h"

#include "core/Failure.h"
#include "ui/widgets/SvgIcon.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr qint32 elementNotFound = 35601;

/// The file of a key; nothing for what can be no key.
QString fileName(QString key) {
    const bool possible = !key.contains(u'_') && !key.contains(u'/');
    return possible ? key.replace(u' ', u'_') + QStringLiteral(".svg") : QString();
}

} // namespace

PictureList::PictureList(const QString& name, QObject* parent)
    : QObject(parent)
    , folder_(QStringLiteral(":/talivane/pictures/") + name.mid(2).toLower()) {
    setObjectName(name);
}

QStringList PictureList::keys() const {
    QStringList found;
    for (const QString& file : QDir(folder_).entryList({QStringLiteral("*.svg")})) {
        found << file.chopped(4).replace(u'_', u' ');
    }
    return found;
}

QIcon PictureList::picture(const QString& key) const {
    const QString file = fileName(key);
    if (!QFileInfo(folder_ + u'/' + file).isFile()) {
        throw Failure{elementNotFound, QStringLiteral("Element not found")};
    }
    return svgIcon(folder_ + u'/' + file);
}
