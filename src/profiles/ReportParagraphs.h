#pragma once

#include "catalogues/cElement.h"
#include "profiles/sentences/Sentence.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/surface/ReportSurface.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <span>

/// A step of the report on a person or an element.
template<class Record>
struct ReportParagraph {
    std::span<const reportSentences::Piece<Record>> pieces;
    /// Printed ahead of the paragraph, if any.
    QStringView heading = {};
    /// The field of the own element that names the other one, if this paragraph or its heading is the first
    /// to need a new one.
    qint32 cElement::*otherId = nullptr;
};

/// The text that the pieces of a paragraph or heading make.
template<class Record>
QString joined(std::span<const reportSentences::Piece<Record>> pieces,
               const reportSentences::Subjects<Record>& subjects) {
    QString text;
    for (const reportSentences::Piece<Record>& piece : pieces) {
        if (piece.field != nullptr) {
            text += piece.field(subjects);
        } else {
            text += piece.text;
        }
    }
    return text;
}

/// Writes paragraphs with their headings, each one text. A look-up that fails leaves the element before it.
template<class Record>
void writeParagraphs(ReportSurface& vp, const Record& record, const cElement& ownElement,
                     std::span<const ReportParagraph<Record>> paragraphs) {
    std::optional<cElement> other;
    for (const ReportParagraph<Record>& paragraph : paragraphs) {
        if (paragraph.otherId != nullptr) {
            if (!other) {
                other.emplace();
            }
            other->GetElement(ownElement.*paragraph.otherId);
        }
        if (!paragraph.heading.isEmpty()) {
            modRooms::PrintHeading(vp, paragraph.heading.toString(), 0);
        }
        vp.Write(joined<Record>(paragraph.pieces, {record, other}));
    }
}
