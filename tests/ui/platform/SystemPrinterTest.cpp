#include "ui/platform/SystemPrinter.h"

#include "core/Failure.h"
#include "support/PdfText.h"
#include "support/WindowDriver.h"

#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include "support/FileSizeLimit.h"
#endif

namespace {

class SystemPrinterTest : public testing::Test {
protected:
    QTemporaryDir folder_;
    const QString file_ = folder_.path() + QStringLiteral("/report.pdf");
    SystemPrinter printer_;
    QList<qint32> painted_;
    QList<QTransform> transforms_;

    void SetUp() override {
        printer_.device().setOutputFormat(QPrinter::PdfFormat);
        printer_.device().setOutputFileName(file_);
        printer_.device().setPageSize(QPageSize(QPageSize::Letter));
    }
    PrintableDocument document(qint32 pages) {
        return {pages, QSizeF(12240, 15840), [this](QPainter& painter, qint32 page) {
                    painted_ << page;
                    transforms_ << painter.transform();
                    painter.fillRect(QRectF(1440, 1440, 1440, 1440), Qt::black);
                }};
    }
    [[nodiscard]] int pagesInFile() const {
        QFile file(file_);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        static const QRegularExpression page(QStringLiteral("/Type\\s*/Page\\b"));
        return static_cast<int>(QString::fromLatin1(file.readAll()).count(page));
    }
};

} // namespace

TEST_F(SystemPrinterTest, print_allPagesInOrder) {
    printer_.printOnDevice(document(3));
    EXPECT_EQ(painted_, (QList<qint32>{0, 1, 2}));
    EXPECT_EQ(pagesInFile(), 3);
}

TEST_F(SystemPrinterTest, print_namesTheDocumentAndTheProgramInTheFile) {
    PrintableDocument named = document(1);
    named.title = QStringLiteral("Room Report");
    printer_.printOnDevice(named);
    QFile file(file_);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray pdf = file.readAll();
    EXPECT_TRUE(pdf.contains("/Title " + pdfText(QStringLiteral("Room Report"))));
    EXPECT_TRUE(pdf.contains("/Creator " + pdfText(QStringLiteral("Talivane"))));
}

TEST_F(SystemPrinterTest, print_toAFileWithoutAChoice_asksFirstAndKeepsWhatStandsThere) {
    QFile earlier(file_);
    ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
    earlier.write("an earlier report");
    earlier.close();
    WindowDriver::whileModal([this] { printer_.print(document(1)); },
                             [](QWidget& dialog) {
                                 EXPECT_NE(qobject_cast<QPrintDialog*>(&dialog), nullptr);
                                 WindowDriver::press(dialog, Qt::Key_Escape);
                             });
    EXPECT_TRUE(painted_.isEmpty());
    ASSERT_TRUE(earlier.open(QIODevice::ReadOnly));
    EXPECT_EQ(earlier.readAll().toStdString(), "an earlier report");
}

TEST_F(SystemPrinterTest, print_afterAChoice_printsAndTheNextOneAsksAgain) {
    bool chosen = false;
    WindowDriver::whileModal([&] { chosen = printer_.choose(); },
                             [](QWidget& dialog) { static_cast<QPrintDialog&>(dialog).accept(); });
    ASSERT_TRUE(chosen);
    printer_.print(document(2));
    EXPECT_EQ(pagesInFile(), 2);
    WindowDriver::whileModal([this] { printer_.print(document(1)); },
                             [](QWidget& dialog) { WindowDriver::press(dialog, Qt::Key_Escape); });
    EXPECT_EQ(pagesInFile(), 2);
}

TEST_F(SystemPrinterTest, print_aPageOfThePapersSize_keepsItsMeasures) {
    printer_.printOnDevice(document(1));
    const double dotsPerTwip = printer_.device().resolution() / 1440.0;
    ASSERT_EQ(transforms_.size(), 1);
    EXPECT_NEAR(transforms_.at(0).m11(), dotsPerTwip, 1e-9);
    EXPECT_NEAR(transforms_.at(0).dx(), 0, 2);
    EXPECT_NEAR(transforms_.at(0).dy(), 0, 2);
}

TEST_F(SystemPrinterTest, print_onSmallerPaper_scalesTheWholePageIntoItsMiddle) {
    printer_.device().setPageSize(QPageSize(QPageSize::A5));
    printer_.printOnDevice(document(1));
    const QRectF paper = printer_.device().paperRect(QPrinter::DevicePixel);
    const QRectF page = transforms_.at(0).mapRect(QRectF(0, 0, 12240, 15840));
    EXPECT_TRUE(QRectF(-1, -1, paper.width() + 2, paper.height() + 2).contains(page));
    EXPECT_NEAR(page.center().x(), paper.width() / 2, 1);
    EXPECT_NEAR(page.center().y(), paper.height() / 2, 1);
    EXPECT_TRUE(std::abs(page.width() - paper.width()) < 2 || std::abs(page.height() - paper.height()) < 2);
}

TEST_F(SystemPrinterTest, print_aPageRange_printsOnlyThat) {
    printer_.device().setPrintRange(QPrinter::PageRange);
    printer_.device().setFromTo(2, 3);
    printer_.printOnDevice(document(5));
    EXPECT_EQ(painted_, (QList<qint32>{1, 2}));
}

TEST_F(SystemPrinterTest, print_aRangeBeyondTheDocument_printsNothing) {
    printer_.device().setPrintRange(QPrinter::PageRange);
    printer_.device().setFromTo(8, 9);
    printer_.printOnDevice(document(5));
    EXPECT_TRUE(painted_.isEmpty());
    EXPECT_FALSE(QFile::exists(file_));
}

TEST_F(SystemPrinterTest, print_lastPageFirst_reversesTheOrder) {
    printer_.device().setPageOrder(QPrinter::LastPageFirst);
    printer_.printOnDevice(document(3));
    EXPECT_EQ(painted_, (QList<qint32>{2, 1, 0}));
}

TEST_F(SystemPrinterTest, print_collatedCopies_repeatTheDocument) {
    ASSERT_FALSE(printer_.device().supportsMultipleCopies());
    printer_.device().setCopyCount(2);
    printer_.device().setCollateCopies(true);
    printer_.printOnDevice(document(2));
    EXPECT_EQ(painted_, (QList<qint32>{0, 1, 0, 1}));
}

TEST_F(SystemPrinterTest, print_uncollatedCopies_repeatEachPage) {
    printer_.device().setCopyCount(2);
    printer_.device().setCollateCopies(false);
    printer_.printOnDevice(document(2));
    EXPECT_EQ(painted_, (QList<qint32>{0, 0, 1, 1}));
}

TEST_F(SystemPrinterTest, print_anEmptyDocument_writesNoFile) {
    printer_.printOnDevice({});
    EXPECT_FALSE(QFile::exists(file_));
}

TEST_F(SystemPrinterTest, print_whereNoFileCanBe_tellsWhy) {
    printer_.device().setOutputFileName(folder_.path() + QStringLiteral("/missing/report.pdf"));
    try {
        printer_.printOnDevice(document(1));
        FAIL() << "the printer took it";
    } catch (const Failure& refused) {
        EXPECT_EQ(refused.number, 76);
        EXPECT_EQ(refused.description, QStringLiteral("Path not found"));
    }
}

#ifdef Q_OS_UNIX
TEST_F(SystemPrinterTest, print_thatFindsNoRoom_isDiskFullAndKeepsWhatStandsThere) {
    QFile earlier(file_);
    ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
    earlier.write("an earlier report");
    earlier.close();
    try {
        const FileSizeLimit limit(500);
        printer_.printOnDevice(document(1));
        ADD_FAILURE() << "the printer took it";
    } catch (const Failure& refused) {
        EXPECT_EQ(refused.number, 61);
        EXPECT_EQ(refused.description, QStringLiteral("Disk full"));
    }
    EXPECT_EQ(printer_.device().outputFileName(), file_);
    ASSERT_TRUE(earlier.open(QIODevice::ReadOnly));
    EXPECT_EQ(earlier.readAll().toStdString(), "an earlier report");
}

TEST_F(SystemPrinterTest, print_afterADiskWasFull_printsWhereThereIsRoom) {
    PrintableDocument large = document(3);
    large.paint = [](QPainter& painter, qint32 page) {
        constexpr int spots = 5000; // more than is kept back in memory before it is written
        for (int spot = 0; spot < spots; ++spot) {
            painter.drawLine(spot, (spot * spot + page) % 9973, spot * 7 % 9967, spot * spot % 9949);
        }
    };
    {
        const FileSizeLimit limit(500);
        EXPECT_THROW(printer_.printOnDevice(large), Failure);
    }
    printer_.printOnDevice(large);
    EXPECT_EQ(pagesInFile(), 3);
}
#endif
