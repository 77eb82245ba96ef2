#include "core/ReplaceFile.h"

#include "core/Failure.h"
#include "support/QtPrinting.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include "support/FileSizeLimit.h"
#endif

namespace {

class ReplaceFileTest : public testing::Test {
protected:
    QTemporaryDir folder_;
    const QString file_ = folder_.filePath(QStringLiteral("report Größe.html"));

    [[nodiscard]] QByteArray content() const {
        QFile file(file_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    /// The number of the failure, 0 for none.
    static qint32 replaced(const QString& path, const QByteArray& bytes) {
        try {
            replaceFile(path, bytes);
        } catch (const Failure& thrown) {
            return thrown.number;
        }
        return 0;
    }
    [[nodiscard]] qsizetype filesInFolder() const {
        return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden).size();
    }
};

} // namespace

TEST_F(ReplaceFileTest, newFile_isWritten_andAnEarlierOneReplaced) {
    EXPECT_EQ(replaced(file_, "long first words"), 0);
    EXPECT_EQ(replaced(file_, "words"), 0);
    EXPECT_EQ(content(), QByteArray("words"));
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(ReplaceFileTest, missingFolder_isPathNotFound) {
    EXPECT_EQ(replaced(folder_.filePath(QStringLiteral("missing/report.html")), "words"), 76);
}

TEST_F(ReplaceFileTest, folderOrDeviceInItsPlace_isAPathAccessErrorAndStays) {
    ASSERT_TRUE(QDir().mkdir(file_));
    EXPECT_EQ(replaced(file_, "words"), 75);
    EXPECT_TRUE(QFileInfo(file_).isDir());
#ifdef Q_OS_UNIX
    EXPECT_EQ(replaced(QStringLiteral("/dev/null"), "words"), 75);
#endif
}

#ifdef Q_OS_UNIX
TEST_F(ReplaceFileTest, roomForAPart_isDiskFullAndLeavesTheEarlierFile) {
    ASSERT_EQ(replaced(file_, "earlier"), 0);
    for (const qsizetype size : {2'000, 20'000, 200'000}) { // less and more than what is written in one go
        const FileSizeLimit limit(1000);
        EXPECT_EQ(replaced(file_, QByteArray(size, 'x')), 61) << size;
    }
    EXPECT_EQ(content(), QByteArray("earlier"));
    EXPECT_EQ(filesInFolder(), 1);
}
#endif
