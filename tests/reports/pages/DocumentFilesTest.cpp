#include "reports/pages/DocumentFiles.h"

#include "core/Failure.h"
#include "reports/pages/PageSurfaceFixture.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <functional>

#ifdef Q_OS_UNIX
#include "support/FileSizeLimit.h"
#endif

namespace {

class DocumentFilesTest : public PageSurfaceFixture {
protected:
    void SetUp() override { ASSERT_TRUE(folder.isValid()); }

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }

    [[nodiscard]] QByteArray read(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void writePages(int count) {
        surface.StartDoc();
        for (int number = 1; number <= count; ++number) {
            if (number > 1) {
                surface.NewPage();
            }
            surface.Write(QStringLiteral("page %1").arg(number));
        }
        surface.EndDoc();
    }

    static qint32 failureOf(const std::function<void()>& action) {
        try {
            action();
        } catch (const Failure& thrown) {
            EXPECT_FALSE(thrown.description.isEmpty());
            return thrown.number;
        }
        return 0;
    }

    QTemporaryDir folder;
};

TEST_F(DocumentFilesTest, ExportFile_isWrittenByTheNextDocumentWhileItIsSet) {
    surface.ExportFile(path(QStringLiteral("a report \u00e9.html")));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    writePages(1);
    EXPECT_TRUE(read(QStringLiteral("a report \u00e9.html")).contains("page 1"));
    surface.ExportFile(QString());
    QFile::remove(path(QStringLiteral("a report \u00e9.html")));
    writePages(1);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(DocumentFilesTest, ExportFile_thatExists_isReplaced) {
    QFile old(path(QStringLiteral("Temp.html")));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(100'000, 'x'));
    old.close();
    surface.ExportFile(old.fileName());
    writePages(1);
    const QByteArray written = read(QStringLiteral("Temp.html"));
    EXPECT_TRUE(written.startsWith("<!DOCTYPE html>"));
    EXPECT_TRUE(written.endsWith("</html>\n"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(DocumentFilesTest, ExportFile_intoAMissingFolder_failsAndLeavesTheDocumentFinished) {
    surface.ExportFile(path(QStringLiteral("missing/Temp.html")));
    EXPECT_EQ(failureOf([this] { writePages(2); }), static_cast<qint32>(ErrorNumber::PathNotFound));
    EXPECT_EQ(surface.PageCount(), 2);
    EXPECT_EQ(surface.PreviewPage(), 1);
    surface.ExportFile(QString());
    writePages(1);
    EXPECT_EQ(surface.PageCount(), 1);
}

TEST_F(DocumentFilesTest, ExportFile_thatIsNoFile_failsAndStaysWhatItIs) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Temp.html")));
    surface.ExportFile(path(QStringLiteral("Temp.html")));
    EXPECT_EQ(failureOf([this] { writePages(1); }), static_cast<qint32>(ErrorNumber::PathFileAccess));
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("Temp.html"))).isDir());
}

#ifdef Q_OS_UNIX
TEST_F(DocumentFilesTest, writingThatFindsNoRoom_failsAndKeepsTheOldFile) {
    const QString file = path(QStringLiteral("Temp.html"));
    surface.ExportFile(file);
    writePages(1);
    const QByteArray before = read(QStringLiteral("Temp.html"));
    ASSERT_FALSE(before.isEmpty());
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(failureOf([this] { writePages(2); }), static_cast<qint32>(ErrorNumber::DiskFull));
        EXPECT_EQ(failureOf([&] { writePdf(surface.document(), file); }),
                  static_cast<qint32>(ErrorNumber::DiskFull));
    }
    EXPECT_EQ(read(QStringLiteral("Temp.html")), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}
#endif

TEST_F(DocumentFilesTest, writePdf_hasAPageForEveryPage) {
    writePages(3);
    writePdf(surface.document(), path(QStringLiteral("report.pdf")));
    const QByteArray pdf = read(QStringLiteral("report.pdf"));
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_EQ(pdf.count("/Type /Page\n"), 3);
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 595")) << "A4 in points";
}

TEST_F(DocumentFilesTest, writePdf_onADevice_givesTheSamePages) {
    writePages(2);
    QBuffer buffer;
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
    writePdf(surface.document(), buffer);
    EXPECT_EQ(buffer.data().count("/Type /Page\n"), 2);
}

TEST_F(DocumentFilesTest, writePdf_intoAMissingFolder_fails) {
    writePages(1);
    EXPECT_EQ(failureOf([this] { writePdf(surface.document(), path(QStringLiteral("missing/a.pdf"))); }),
              static_cast<qint32>(ErrorNumber::PathNotFound));
}

} // namespace
