#include "ui/PictureList.h"

#include "core/Failure.h"
#include "ui/widgets/SvgIcon.h"

#include <QDir>

namespace {

constexpr qint32 elementNotFound = 35601;

QString fileName(QString key) {
    return key.replace(u' ', u'_') + QStringLiteral(".svg");
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
    if (!keys().contains(key)) {
        throw Failure{elementNotFound, QStringLiteral("Element not found")};
    }
    return svgIcon(folder_ + u'/' + fileName(key));
}
