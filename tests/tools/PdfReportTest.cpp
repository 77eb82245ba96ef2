// The text of the reports' PDF files, as a reader that is not ours takes it out, against what the builders
// wrote.

#include "core/VersionRecord.h"
#include "reports/pages/DocumentFiles.h"
#include "reports/pages/PageSurface.h"
#include "reports/surface/RecordingSurface.h"
#include "support/PdfText.h"
#include "support/TestWorld.h"
#include "transcript/Reports.h"

#include <QFile>
#include <QFontDatabase>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

/// Paper by its name, in twips.
struct Paper {
    const char* name;
    QSizeF size;
};

const std::array<Paper, 2> papers{{{"A4", QSizeF(11906, 16838)}, {"Letter", QSizeF(12240, 15840)}}};

/// A report with its arguments, and a title that its file bears.
struct Report {
    const char* name;
    QStringList arguments;
};

const QString today = QStringLiteral("2026-02-14");

QList<Report> reports() {
    const QString ann = QStringLiteral("1");
    const QString south = QStringLiteral("South");
    return {{"rooms", {ann, QStringLiteral("1")}},
            {"profile", {ann, QStringLiteral("paper")}},
            {"element", {QStringLiteral("1"), QStringLiteral("paper")}},
            {"chart", {ann, today}},
            {"move", {ann, today}},
            {"renovation", {ann, today}},
            {"years", {ann, south, QStringLiteral("move"), today}},
            {"years", {ann, south, QStringLiteral("renovation"), today}}};
}

QStringList words(const QString& text) {
    static const QRegularExpression blanks(QStringLiteral("[\\s\\x{00A0}]+"));
    return text.split(blanks, Qt::SkipEmptyParts);
}

class PdfReportTest : public testing::Test {
protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty()) {
            GTEST_SKIP() << "pdftotext is not installed";
        }
    }
    /// Gives the first person and the home's kitchen other names.
    void rename(const QString& person, const QString& kitchen) const {
        const auto replace = [this](const QString& file, const QByteArray& old, const QString& name) {
            const QByteArray before = world_.read(file);
            ASSERT_TRUE(before.contains(old));
            world_.write(file, QByteArray(before).replace(old, '"' + name.toUtf8() + '"'));
        };
        replace(QStringLiteral("Profiles.xml"), "\"Ann Example\"", person);
        replace(QStringLiteral("Rooms.xml"), "\"Kitchen\"", kitchen);
    }
    /// Writes a report as PDF and compares the text of its pages with what was written.
    void expectTextOf(const Report& report, const Paper& paper) {
        SCOPED_TRACE(std::string(report.name) + " on " + paper.name);
        QStringList written;
        QStringList headers;
        qsizetype turnedLetters = 0;
        PageSurface pages(paper.size);
        RecordingSurface surface(pages, [&](const SurfaceCall& call) {
            if (call.op == u"Write" || call.op == u"TextBox") {
                written << words(call.args.first().toString());
                turnedLetters += call.op == u"TextBox" ? call.args.first().toString().size() : 0;
            } else if (call.op == u"Header" || call.op == u"Footer") {
                headers << words(call.args.first().toString()).join(u' ');
            }
        });
        const auto& known = transcriptReports();
        std::ranges::find(known, QString::fromLatin1(report.name), &TranscriptReport::name)
            ->write(report.arguments, surface);
        writePdf(pages.document(), file_);
        headers.removeAll(QString());
        EXPECT_FALSE(headers.isEmpty());
        expectWords(withoutHeaders(extracted(), headers), written, turnedLetters);
        expectDescription();
        expectPaper(paper);
    }
    [[nodiscard]] QString extracted() const {
        return run(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), file_, QStringLiteral("-")});
    }

    TestWorld world_{TestWorld::Records::Sample};
    const QString file_ = world_.file(QStringLiteral("report.pdf"));

private:
    static QString run(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << qPrintable(process.errorString());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    /// The pages' words; each page ends with the header that runs over it.
    static QStringList withoutHeaders(const QString& text, const QStringList& headers) {
        QStringList all;
        for (const QString& page : text.split(u'\f', Qt::SkipEmptyParts)) {
            QString body = words(page).join(u' ');
            qsizetype header = 0;
            for (const QString& each : headers) {
                header = body.endsWith(each) ? std::max(header, each.size()) : header;
            }
            EXPECT_GT(header, 0) << "a page without its header: " << qPrintable(body.right(80));
            body.chop(header);
            all << words(body);
        }
        return all;
    }
    /// The same letters in the same order, and a blank wherever one was written. A blank more is the reader's
    /// guess from the letters' places: where a line breaks after a hyphen, and between letters that are
    /// turned.
    static void expectWords(const QStringList& found, const QStringList& written, qsizetype turnedLetters) {
        EXPECT_GT(written.size(), 20);
        const QString left = found.join(QString());
        const QString right = written.join(QString());
        const auto [in, out] = std::ranges::mismatch(left, right);
        const qsizetype same = in - left.begin();
        ASSERT_TRUE(left == right) << qPrintable(left.mid(same - 30, 60)) << " was written as "
                                   << qPrintable(right.mid(same - 30, 60));
        const std::set<qsizetype> foundEnds = wordEnds(found);
        for (const qsizetype end : wordEnds(written)) {
            EXPECT_TRUE(foundEnds.contains(end)) << "no blank after letter " << end;
        }
        const auto broken =
            std::ranges::count_if(found, [](const QString& word) { return word.endsWith(u'-'); });
        EXPECT_LE(found.size() - broken - written.size(), turnedLetters);
    }
    /// How many letters stand before each end of a word.
    static std::set<qsizetype> wordEnds(const QStringList& words) {
        std::set<qsizetype> ends;
        qsizetype letters = 0;
        for (const QString& word : words) {
            ends.insert(letters += word.size());
        }
        return ends;
    }
    void expectDescription() const {
        QFile file(file_);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray pdf = file.readAll();
        EXPECT_TRUE(pdf.contains("/Creator " + pdfText(VersionRecord::title.toString())));
        EXPECT_TRUE(pdf.contains("/Title (\xFE\xFF"));
    }
    void expectPaper(const Paper& paper) const {
        const QString facts = run(QStringLiteral("pdfinfo"), {file_});
        EXPECT_TRUE(facts.contains(QString::fromLatin1(paper.name), Qt::CaseInsensitive))
            << qPrintable(facts);
    }
};

} // namespace

TEST_F(PdfReportTest, everyReportOnEveryPaper_holdsWhatTheTranscriptTells) {
    for (const Paper& paper : papers) {
        for (const Report& report : reports()) {
            expectTextOf(report, paper);
        }
    }
}

TEST_F(PdfReportTest, umlautsInNames_canBeTakenOutAgain) {
    rename(QStringLiteral("J\u00FCrgen Gro\u00DF"), QStringLiteral("K\u00FCche"));
    for (const Paper& paper : papers) {
        for (const Report& report : reports()) {
            expectTextOf(report, paper);
        }
    }
}

TEST_F(PdfReportTest, cyrillicNames_canBeTakenOutAgain) {
    rename(QStringLiteral("\u0410\u043D\u043D\u0430 \u0418\u0432\u0430\u043D\u043E\u0432\u0430"),
           QStringLiteral("\u041A\u0443\u0445\u043D\u044F"));
    expectTextOf(reports().at(0), papers[0]);
    expectTextOf(reports().at(1), papers[1]);
}

TEST_F(PdfReportTest, chineseNames_canBeTakenOutAgainWhereAFontHasTheirLetters) {
    if (QFontDatabase::families(QFontDatabase::SimplifiedChinese).isEmpty()) {
        GTEST_SKIP() << "no font with Chinese letters is installed";
    }
    rename(QStringLiteral("\u738B\u5C0F\u660E"), QStringLiteral("\u53A8\u623F"));
    expectTextOf(reports().at(0), papers[0]);
    expectTextOf(reports().at(1), papers[1]);
}
