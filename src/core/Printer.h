#pragma once

#include <QSizeF>
#include <QString>

#include <functional>

class QPainter;

/// A finished document as a printer sees it.
struct PrintableDocument {
    qint32 pageCount = 0;
    /// Size of every page in twips.
    QSizeF pageSize;
    /// Paints a page (counted from 0) in twips, with the origin at the page's top left corner.
    std::function<void(QPainter&, qint32)> paint;
    /// What the document is called in the printer's queue and in a PDF file.
    QString title = {};
};

/// The system's printer, or a PDF file in its place.
class Printer {
public:
    virtual ~Printer() = default;

    /// Shows the system's print dialog. True when the user confirms.
    virtual bool choose() = 0;

    /// Prints on the device that the last dialog chose, or on the system's default one.
    /// Throws a Failure when the device refuses.
    virtual void print(const PrintableDocument& document) = 0;
};
