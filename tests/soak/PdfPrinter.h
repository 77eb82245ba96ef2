#pragma once

#include "core/Printer.h"
#include "soak/Journal.h"

#include <QFile>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

/// A printer whose user confirms by chance, and which prints the first pages into a PDF file.
class PdfPrinter final : public Printer {
public:
    PdfPrinter(Journal& journal, QString path)
        : journal_(journal)
        , path_(std::move(path)) {}

    bool choose() override {
        const bool confirmed = !journal_.oneIn(3);
        journal_.remark(confirmed ? QStringLiteral("print dialog -> Print")
                                  : QStringLiteral("print dialog -> Cancel"));
        return confirmed;
    }

    void print(const PrintableDocument& document) override {
        constexpr qint32 mostPages = 3; // the rest of a long report costs time and tells nothing new
        constexpr int twipsPerInch = 1440;
        if (document.pageCount < 1) {
            return;
        }
        {
            QPdfWriter pdf(path_);
            pdf.setPageSize(QPageSize(document.pageSize / twipsPerInch, QPageSize::Inch));
            pdf.setResolution(twipsPerInch);
            pdf.setTitle(document.title);
            QPainter painter(&pdf);
            for (qint32 page = 0; page < std::min(document.pageCount, mostPages); ++page) {
                if (page > 0) {
                    pdf.newPage();
                }
                document.paint(painter, page);
            }
        }
        ++printed;
        QFile written(path_);
        EXPECT_TRUE(written.open(QIODevice::ReadOnly) && written.read(5) == "%PDF-") << qPrintable(path_);
    }

    /// How many documents were printed.
    int printed = 0;

private:
    Journal& journal_;
    QString path_;
};
