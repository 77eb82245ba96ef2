// Printing on a queue of the print system that Unix desktops share: the program and Qt as they are, against a
// small print server of the test's own (tests/support/print_server.py).
#include "ui/platform/PrintQueue.h"

#include "core/Failure.h"
#include "support/FileSizeLimit.h"
#include "ui/platform/SystemPrinter.h"

#include <QFile>
#include <QLibrary>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString queueName = QStringLiteral("Study");
constexpr int notAcceptingJobs = 0x0506;
constexpr int internalError = 0x0500;

/// Has this process print at a server; nullptr is the system's own. False where there is no such print
/// system.
bool printAt(const char* socket) {
    using SetServer = void (*)(const char*);
    const auto setServer =
        reinterpret_cast<SetServer>(QLibrary::resolve(QStringLiteral("libcups.so.2"), "cupsSetServer"));
    if (setServer != nullptr) {
        setServer(socket);
    }
    return setServer != nullptr;
}

class PrintQueueTest : public testing::Test {
protected:
    QTemporaryDir folder_;
    QProcess server_;
    SystemPrinter printer_;

    void SetUp() override {
        server_.start(QStringLiteral(TALIVANE_SYSTEM_PYTHON),
                      {QStringLiteral(TALIVANE_PRINT_SERVER), folder_.path()});
        ASSERT_TRUE(server_.waitForReadyRead()) << server_.errorString().toStdString();
        if (!printAt(QFile::encodeName(inFolder(QStringLiteral("socket"))).constData())) {
            GTEST_SKIP() << "there is no libcups here";
        }
        if (!QPrinterInfo::availablePrinterNames().contains(queueName)) {
            GTEST_SKIP() << "this Qt prints by other means";
        }
        printer_.device().setPrinterName(queueName);
        ASSERT_EQ(printer_.device().outputFormat(), QPrinter::NativeFormat);
    }
    void TearDown() override {
        stopServer();
        printAt(nullptr);
    }
    void stopServer() {
        server_.closeWriteChannel();
        server_.waitForFinished();
    }
    [[nodiscard]] QString inFolder(const QString& name) const { return folder_.filePath(name); }
    /// What the printer's failure says; empty where it takes the document.
    std::string printed() {
        try {
            printer_.print({2, QSizeF(12240, 15840), [](QPainter& painter, qint32) {
                                painter.fillRect(QRectF(1440, 1440, 1440, 1440), Qt::black);
                            }});
        } catch (const Failure& refused) {
            return std::to_string(refused.number) + "-" + refused.description.toStdString();
        }
        return {};
    }
    void refuse(const QString& stage, int status) {
        QFile file(inFolder(QStringLiteral("refuse-") + stage));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::number(status));
    }
};

} // namespace

TEST_F(PrintQueueTest, print_onAQueueThatTakesIt_isSilentAndTheDocumentArrivesWhole) {
    EXPECT_EQ(printed(), "");
    QFile document(inFolder(QStringLiteral("document-1.pdf")));
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    const QByteArray pdf = document.readAll();
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_TRUE(pdf.contains("/Count 2"));
    EXPECT_FALSE(QFile::exists(inFolder(QStringLiteral("document-2.pdf"))));
}

TEST_F(PrintQueueTest, print_onAQueueThatRejectsJobs_isAPrinterError) {
    refuse(QStringLiteral("create"), notAcceptingJobs);
    EXPECT_EQ(printed(), "482-Printer error");
}

TEST_F(PrintQueueTest, print_whereTheServerCannotKeepTheDocument_isAPrinterError) {
    refuse(QStringLiteral("send"), internalError);
    EXPECT_EQ(printed(), "482-Printer error");
}

TEST_F(PrintQueueTest, print_afterTheServerHasGone_isAPrinterError) {
    stopServer();
    EXPECT_EQ(printed(), "482-Printer error");
}

TEST_F(PrintQueueTest, print_whereTheDocumentFindsNoRoomOnItsWayToTheQueue_isDiskFullAndNothingArrives) {
    {
        const FileSizeLimit limit(500);
        EXPECT_EQ(printed(), "61-Disk full");
    }
    EXPECT_FALSE(QFile::exists(inFolder(QStringLiteral("document-1.pdf"))));
    EXPECT_EQ(printer_.device().outputFormat(), QPrinter::NativeFormat);
    EXPECT_EQ(printed(), "");
    EXPECT_TRUE(QFile::exists(inFolder(QStringLiteral("document-1.pdf"))));
}

TEST_F(PrintQueueTest, print_afterARefusal_printsOnceTheQueueTakesJobsAgain) {
    refuse(QStringLiteral("create"), notAcceptingJobs);
    EXPECT_EQ(printed(), "482-Printer error");
    EXPECT_TRUE(printQueueRefused());
    ASSERT_TRUE(QFile::remove(inFolder(QStringLiteral("refuse-create"))));
    EXPECT_EQ(printed(), "");
    EXPECT_FALSE(printQueueRefused());
    EXPECT_TRUE(QFile::exists(inFolder(QStringLiteral("document-1.pdf"))));
}

TEST_F(PrintQueueTest, print_toAFileAfterARefusal_owesNothingToTheQueue) {
    refuse(QStringLiteral("create"), notAcceptingJobs);
    EXPECT_EQ(printed(), "482-Printer error");
    printer_.device().setOutputFormat(QPrinter::PdfFormat);
    printer_.device().setOutputFileName(inFolder(QStringLiteral("report.pdf")));
    printer_.printOnDevice({1, QSizeF(12240, 15840), [](QPainter&, qint32) {}});
    EXPECT_TRUE(QFile::exists(inFolder(QStringLiteral("report.pdf"))));
}
