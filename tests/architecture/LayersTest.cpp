#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

namespace {

const QString root = QStringLiteral(TALIVANE_SOURCE_ROOT);

QString contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

/// The table of docs/architecture.md: folder below src/ -> folders whose headers it may include.
QMap<QString, QSet<QString>> allowedIncludes() {
    QMap<QString, QSet<QString>> table;
    static const QRegularExpression row(QStringLiteral("^\\| `src/([^`]+)` \\|[^|]*\\|([^|]*)\\|$"),
                                        QRegularExpression::MultilineOption);
    static const QRegularExpression folder(QStringLiteral("`([^`]+)`"));
    auto rows = row.globalMatch(contentOf(root + QStringLiteral("/docs/architecture.md")));
    while (rows.hasNext()) {
        const auto match = rows.next();
        QSet<QString>& allowed = table[match.captured(1)];
        auto folders = folder.globalMatch(match.captured(2));
        while (folders.hasNext()) {
            allowed.insert(folders.next().captured(1));
        }
    }
    return table;
}

/// The row of the table that a path below src/ belongs to: the longest folder that it begins with.
QString layerOf(const QString& path, const QList<QString>& layers) {
    QString found;
    for (const QString& layer : layers) {
        if (path.startsWith(layer + u'/') && layer.size() > found.size()) {
            found = layer;
        }
    }
    return found;
}

QStringList sourceFiles() {
    QStringList files;
    QDirIterator iterator(root + QStringLiteral("/src"), {QStringLiteral("*.h"), QStringLiteral("*.cpp")},
                          QDir::Files, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        files << iterator.next().mid(root.size() + 5);
    }
    return files;
}

} // namespace

TEST(Layers, everyFolderOfSources_hasARowInTheTable) {
    const auto table = allowedIncludes();
    ASSERT_GE(table.size(), 8);
    for (const QString& file : sourceFiles()) {
        EXPECT_FALSE(layerOf(file, table.keys()).isEmpty()) << qPrintable(file);
    }
}

TEST(Layers, noFileIncludesALayerThatItsRowDoesNotName) {
    const auto table = allowedIncludes();
    static const QRegularExpression include(QStringLiteral("^#include \"([^\"]+)\""),
                                            QRegularExpression::MultilineOption);
    for (const QString& file : sourceFiles()) {
        const QString layer = layerOf(file, table.keys());
        auto includes = include.globalMatch(contentOf(root + QStringLiteral("/src/") + file));
        while (includes.hasNext()) {
            const QString header = includes.next().captured(1);
            const QString target = layerOf(header, table.keys());
            EXPECT_TRUE(target == layer || table.value(layer).contains(target))
                << qPrintable(file) << " includes " << qPrintable(header);
        }
    }
}

TEST(Layers, nothingReadsFromTheNetwork) {
    // A browser is handed an address; nothing here opens a connection, or links what could.
    static const QRegularExpression network(QStringLiteral(
        "<Q(Network|Tcp|Udp|Ssl|WebSocket|Http|Dns|LocalSocket|AbstractSocket)|<sys/socket\\.h>|<curl/|"
        "QWebEngine"));
    for (const QString& file : sourceFiles()) {
        EXPECT_FALSE(contentOf(root + QStringLiteral("/src/") + file).contains(network)) << qPrintable(file);
    }
    EXPECT_FALSE(contentOf(root + QStringLiteral("/CMakeLists.txt")).contains(QStringLiteral("Network")));
}

TEST(Layers, onlyThePromptsNameTheToolkitsBoxes) {
    static const QRegularExpression boxes(QStringLiteral("QMessageBox|QInputDialog"));
    for (const QString& file : sourceFiles()) {
        if (!file.contains(QStringLiteral("DialogPrompts"))) {
            EXPECT_FALSE(contentOf(root + QStringLiteral("/src/") + file).contains(boxes))
                << qPrintable(file);
        }
    }
}
