#include "faults/FaultTable.h"

#include "faults/FaultStage.h"

#include <gtest/gtest.h>

namespace {

/// The lines, with a count before each that comes several times in a row.
std::string counted(const QStringList& lines) {
    std::string text;
    for (qsizetype from = 0; from < lines.size();) {
        qsizetype to = from;
        while (to < lines.size() && lines.at(to) == lines.at(from)) {
            ++to;
        }
        text += std::to_string(to - from) + " x " + lines.at(from).toStdString() + '\n';
        from = to;
    }
    return text;
}

/// Runs every row with each of its faults on a stage of its own. Says so where the system does not let a disk
/// be filled up.
void expectAll(const FaultTable& rows) {
    ASSERT_FALSE(rows.empty());
    int leftOut = 0;
    for (const FaultRow& row : rows) {
        for (const Fault fault : row.faults) {
            const bool needsDisk = fault == Fault::FullDisk || fault == Fault::NearlyFull;
            if (needsDisk && !SmallDisk::isPossible()) {
                ++leftOut;
                continue;
            }
            SCOPED_TRACE(std::string(row.place) + ", " + nameOf(fault) + ": " + row.operation.name);
            FaultStage stage(QString::fromLatin1(row.place), fault);
            row.operation.run(stage);
            stage.finish();
            EXPECT_EQ(counted(stage.boxes.noted()), counted(row.boxes)) << "boxes";
            EXPECT_EQ(counted(stage.changed()), counted(row.changed)) << "changed on the disk";
        }
    }
    if (leftOut > 0) {
        GTEST_SKIP() << leftOut << " rows of a full disk were left out: no disk may be mounted here";
    }
}

} // namespace

TEST(FaultTableTest, readingAtTheStart_andByWhoLooksAround) {
    expectAll(readingRows());
}

TEST(FaultTableTest, readingForAdvice) {
    expectAll(adviceRows());
}

TEST(FaultTableTest, readingInTheBrowsers) {
    expectAll(browsingRows());
}

TEST(FaultTableTest, writing) {
    expectAll(writingRows());
}

TEST(FaultTableTest, enteringWhereAFileCouldNotBeRead) {
    expectAll(enteringRows());
}

TEST(FaultTableTest, settingsExportsPrinterAndBrowser) {
    expectAll(surroundingRows());
}
