#include "core/VersionRecord.h"
#include "faults/FaultTable.h"

using namespace Boxes;

namespace {

const QString settings = QStringLiteral("settings/Talivane.ini");

/// What a file is replaced for, whoever left it.
const std::vector<Fault> replaced = {Fault::Missing, Fault::Empty, Fault::Truncated, Fault::NotReadable};
const std::vector<Fault> locked = {Fault::NotWritable, Fault::LockedUp};

/// A report is saved as HTML: what fails is reported once, under the label of the routine that writes.
void addHtml(FaultTable& rows, const Operation& operation, const QString& label) {
    const char* const file = "out/report.html";
    const QString html = QString::fromLatin1(file);
    const auto fails = [&](const std::vector<Fault>& faults, const QString& failure,
                           const QStringList& changed) {
        rows.push_back({file, faults, operation, {label + QStringLiteral(": ") + failure}, changed});
    };
    rows.push_back({file, replaced, operation, {}, {html, settings}});
    fails(locked, denied, {settings});
    fails({Fault::Directory}, noFile, {settings});
    fails({Fault::NoFolder}, noPath, {settings});
    fails({Fault::FullDisk}, diskFull, {});
}

/// A report is printed into a PDF file, where the same holds.
void addPdf(FaultTable& rows, const Operation& operation, const QString& label) {
    const char* const file = "out/report.pdf";
    const auto fails = [&](const std::vector<Fault>& faults, const QString& failure,
                           const QStringList& changed) {
        rows.push_back({file, faults, operation, {label + QStringLiteral(": ") + failure}, changed});
    };
    rows.push_back({file, replaced, operation, {}, {QString::fromLatin1(file), settings}});
    fails(locked, denied, {settings});
    fails({Fault::Directory}, noFile, {settings});
    fails({Fault::NoFolder}, noPath, {settings});
    fails({Fault::FullDisk}, diskFull, {});
    fails({Fault::NearlyFull}, diskFull, {settings});
}

/// A printer that has gone.
void addNowhere(FaultTable& rows, const Operation& operation, const QString& label) {
    rows.push_back({"out/report.pdf",
                    {Fault::None},
                    operation,
                    {label + QStringLiteral(": 482-Printer error")},
                    {settings}});
}

void addHelp(FaultTable& rows, const Operation& operation, const QString& title, const QString& page) {
    rows.push_back({"Profiles.xml",
                    {Fault::None},
                    operation,
                    {title +
                     QStringLiteral(": Unable to open your browser and connect to the site.  Please "
                                    "connect to the internet and navigate to ") +
                     VersionRecord::site.toString() + page},
                    {}});
}

} // namespace

FaultTable surroundingRows() {
    FaultTable rows;
    addHtml(rows, Operations::saveRooms, QStringLiteral("cLocation.Analyze Rooms"));
    addHtml(rows, Operations::saveRoom, QStringLiteral("cRoom.Analyze Room"));
    addHtml(rows, Operations::saveChart, QStringLiteral("frmNineKi.GetNineKiChart"));
    addHtml(rows, Operations::saveMove, QStringLiteral("frmNineKi.GetMoveDirections"));
    addHtml(rows, Operations::saveYears, QStringLiteral("frmNineKi.GetMoveYears"));
    addHtml(rows, Operations::saveProfile, QStringLiteral("frmRoom.mnuFileSaveAs_Click"));
    addHtml(rows, Operations::saveElement, QStringLiteral("frmElements.mnuFileSaveAs_Click"));
    rows.push_back({"out/report.html",
                    {Fault::NearlyFull},
                    Operations::saveRooms,
                    {QStringLiteral("cLocation.Analyze Rooms: ") + diskFull},
                    {settings}});
    const QString preview = QStringLiteral("frmPrintPreview.cmdFilePrint_Click");
    const QString plan = QStringLiteral("frmSetDirection.cmdPrint_Click");
    addPdf(rows, Operations::printRooms, preview);
    addPdf(rows, Operations::printRoom, QStringLiteral("frmRoom.mnuFilePrint_Click"));
    addPdf(rows, Operations::printChart, QStringLiteral("frmNineKi.mnuFilePrint_Click"));
    addPdf(rows, Operations::printProfile, QStringLiteral("frmProfiles.mnuFilePrint_Click"));
    addPdf(rows, Operations::printElement, QStringLiteral("frmElements.mnuFilePrint_Click"));
    addPdf(rows, Operations::printHome, plan);
    addPdf(rows, Operations::printPlace, QStringLiteral("frmRoomDirection.cmdPrint_Click"));
    addNowhere(rows, Operations::printRoomsNowhere, preview);
    addNowhere(rows, Operations::printHomeNowhere, plan);
    // Settings fail in silence: what cannot be read is as at the first start, what cannot be written is lost.
    const char* const file = "settings/Talivane.ini";
    const Operation use = Operations::startChooseAndEnd;
    rows.push_back({file, {Fault::Missing, Fault::Empty, Fault::Truncated}, use, {}, {settings}});
    rows.push_back({file, {Fault::NoFolder}, use, {}, {QStringLiteral("settings"), settings}});
    rows.push_back({file, {Fault::Directory, Fault::NotReadable, Fault::FullDisk}, use, {}, {}});
    rows.push_back({file, locked, use, {}, {}});
    addHelp(rows, Operations::askForQuestions, QStringLiteral("Frequently Asked Questions"),
            QStringLiteral("faq.html"));
    addHelp(rows, Operations::askForSupport, QStringLiteral("Support"), QStringLiteral("contact.html"));
    return rows;
}
