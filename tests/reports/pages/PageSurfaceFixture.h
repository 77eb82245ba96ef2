#pragma once

#include "reports/pages/PageSurface.h"
#include "reports/surface/ReportRoutines.h"

#include <QFontDatabase>
#include <QStringList>
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

/// A surface with A4 pages, prepared as every report prepares it, and the arithmetic of its base font.
class PageSurfaceFixture : public testing::Test {
protected:
    static constexpr double pageWidth = 11906;
    static constexpr double pageHeight = 16838;
    static constexpr double inch = 1440;
    static constexpr double spaceAfter = 130;
    /// Arial's own figures, of 2048 to the em: ascender 1854, descender 434 and line gap 67 together, a
    /// digit, a blank.
    static constexpr double em = 11 * 20;
    static constexpr double lineHeight = em * (1854 + 434 + 67) / 2048;
    static constexpr double digit = em * 1139 / 2048;
    static constexpr double blank = em * 569 / 2048;
    /// Lines of the base font on a page between margins of an inch.
    static constexpr int linesOfPage = static_cast<int>((pageHeight - 2 * inch) / lineHeight);

    PageSurfaceFixture() { modRooms::InitReport(surface); }

    /// Words of five digits, so many of them.
    static QString words(int count) { return QStringList(count, QStringLiteral("00000")).join(u' '); }

    /// Some installed face besides the default one.
    static QString anotherFace() {
        for (const QString& face : QFontDatabase::families()) {
            if (face != QStringLiteral("Arial") && QFontDatabase::hasFamily(face) && !face.contains(u'\'')) {
                return face;
            }
        }
        throw std::runtime_error("there is one face only");
    }

    /// A paragraph of so many lines.
    static QString lines(int count) {
        return QStringList(count, QStringLiteral("line")).join(QStringLiteral("\r\n"));
    }

    [[nodiscard]] const Page& page(int number) const {
        return surface.document().pages.at(static_cast<std::size_t>(number) - 1);
    }

    /// The lines of text on a page (from 1), turned ones left out.
    [[nodiscard]] std::vector<TextLine> linesOn(int number) const {
        std::vector<TextLine> found;
        for (const PageItem& item : page(number).items) {
            if (const auto* line = std::get_if<TextLine>(&item)) {
                found.push_back(*line);
            }
        }
        return found;
    }

    [[nodiscard]] QStringList textOn(int number) const {
        QStringList found;
        for (const TextLine& line : linesOn(number)) {
            found += line.text->lineText(line.line);
        }
        return found;
    }

    /// The first item of a kind on a page.
    template<class Item>
    [[nodiscard]] const Item& firstOn(int number) const {
        for (const PageItem& item : page(number).items) {
            if (const auto* found = std::get_if<Item>(&item)) {
                return *found;
            }
        }
        throw std::out_of_range("no such item on the page");
    }

    PageSurface surface{QSizeF(pageWidth, pageHeight)};
};
