// One name for the program wherever a desktop looks for it: its entry, its metainfo, its icons, its windows.

#include "core/VersionRecord.h"

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString root = QStringLiteral(TALIVANE_SOURCE_ROOT);
const QString id = VersionRecord::desktopId.toString();
const QString title = VersionRecord::title.toString();

QString read(const QString& path) {
    QFile file(root + u'/' + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

/// What stands in the first brackets of an expression where it fits a line of the text.
std::string found(const QString& text, const QString& expression) {
    const QRegularExpression line(expression, QRegularExpression::MultilineOption);
    return line.match(text).captured(1).toStdString();
}

} // namespace

TEST(ApplicationId, desktopEntry_bearsItAndNamesItsIconAndWindows) {
    const QString entry = read(QStringLiteral("packaging/%1.desktop").arg(id));
    EXPECT_EQ(found(entry, QStringLiteral("^Icon=(.*)$")), id.toStdString());
    EXPECT_EQ(found(entry, QStringLiteral("^Name=(.*)$")), title.toStdString());
    // X11 windows carry the application's name as their class.
    EXPECT_EQ(found(entry, QStringLiteral("^StartupWMClass=(.*)$")), title.toStdString());
}

TEST(ApplicationId, metainfo_bearsItAndLaunchesTheEntryOfThisVersion) {
    const QString metainfo = read(QStringLiteral("packaging/%1.metainfo.xml").arg(id));
    EXPECT_EQ(found(metainfo, QStringLiteral("<id>(.*)</id>")), id.toStdString());
    EXPECT_EQ(found(metainfo, QStringLiteral("<launchable type=\"desktop-id\">(.*)</launchable>")),
              (id + QStringLiteral(".desktop")).toStdString());
    EXPECT_EQ(found(metainfo, QStringLiteral("<name>(.*)</name>")), title.toStdString());
    EXPECT_EQ(found(metainfo, QStringLiteral("<release version=\"([^\"]*)\"")),
              QStringLiteral("%1.%2.%3")
                  .arg(VersionRecord::majorNumber)
                  .arg(VersionRecord::minorNumber)
                  .arg(VersionRecord::revisionNumber)
                  .toStdString());
}

TEST(ApplicationId, package_namesItsFilesAndIconsAfterIt) {
    EXPECT_EQ(found(read(QStringLiteral("packaging/package.sh")), QStringLiteral("^id=(.*)$")),
              id.toStdString());
}

TEST(ApplicationId, icons_areMadeInEverySizeFromThePictureOfTheWindows) {
    const QString picture = QStringLiteral("src/ui/pictures/talivane.svg");
    EXPECT_TRUE(read(QStringLiteral("packaging/package.sh")).contains(picture));
    const QTemporaryDir folder;
    EXPECT_EQ(QProcess::execute(QStringLiteral(TALIVANE_ICONS), {root + u'/' + picture, id, folder.path()}),
              0);
    int sizes = 0;
    QDirIterator icons(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (icons.hasNext()) {
        const QString path = icons.next().mid(folder.path().size() + 1);
        const int size = path.section(u'x', 0, 0).toInt();
        EXPECT_EQ(path.toStdString(), QStringLiteral("%1x%1/apps/%2.png").arg(size).arg(id).toStdString());
        EXPECT_EQ(QImage(icons.filePath()).size(), QSize(size, size));
        ++sizes;
    }
    EXPECT_GE(sizes, 8);
}
