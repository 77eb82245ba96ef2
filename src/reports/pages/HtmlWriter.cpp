#include "reports/pages/HtmlWriter.h"

#include "reports/pages/HtmlFigure.h"
#include "reports/pages/HtmlText.h"
#include "reports/pages/PageDocument.h"

namespace {

constexpr double headingPoints = 14;
constexpr double subHeadingPoints = 12;

/// Paper stays white and ink as it was written, whatever the reader's desktop prefers.
constexpr QLatin1String styleSheet(R"(:root { color-scheme: light; }
body { margin: 0; background: #ffffff; color: #000000; text-align: left; line-height: 1.2;
 font-family: Arial, "Liberation Sans", Arimo, Helvetica, sans-serif; font-size: 11pt; }
section { display: flow-root; max-width: 41em; margin: 0 auto; padding: 2em 1em; }
section + section { border-top: 1px solid #cccccc; }
h1, h2, h3, p { margin: 0 0 6.5pt; font-weight: normal; white-space: pre-wrap; overflow-wrap: break-word;
 tab-size: 36pt; }
header { border-bottom: 1px solid #000000; margin-bottom: 12pt; }
footer { border-top: 1px solid #000000; margin-top: 12pt; padding-top: 6pt; clear: both; }
figure { margin: 0 0 12pt; }
figure.beside { float: left; margin-right: 18pt; }
.below { clear: both; }
svg { max-width: 100%; height: auto; }
svg text { white-space: pre; }
@media print {
section { max-width: none; padding: 0; border: 0 !important; break-after: page; }
section:last-child { break-after: auto; }
figure { break-inside: avoid; }
h2, h3 { break-after: avoid; }
}
)");

/// Writes a document page by page.
class HtmlWriter {
public:
    explicit HtmlWriter(const PageDocument& document)
        : document_(document) {}

    QByteArray write() {
        writeHead();
        for (const Page& page : document_.pages) {
            writePage(page);
        }
        html_ += QLatin1String("</body>\n</html>\n");
        return html_.toUtf8();
    }

private:
    void writeHead();
    void writePage(const Page& page);
    void writeHeader(const LaidText& header, bool begins);
    void writeItem(const TextLine& line);
    template<class Item>
    void writeItem(const Item& item) {
        figure_.add(item);
    }
    void writeFigure(const TextLine* next);
    void writeParagraph(QLatin1String tag, const QString& text, const TextStyle& style, bool below = false);

    const PageDocument& document_;
    QString html_;
    /// What was drawn since the last paragraph.
    HtmlFigure figure_;
    /// Where the chart ends that paragraphs stand beside, from the page's top.
    double besideUntil_ = 0;
};

void HtmlWriter::writeHead() {
    html_ +=
        QLatin1String("<!DOCTYPE html>\n"
                      "<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"en\" xml:lang=\"en\">\n<head>\n"
                      "<meta charset=\"utf-8\"/>\n"
                      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n<title>");
    appendEscaped(html_, titleOf(document_));
    html_ += QLatin1String("</title>\n<style>\n") + styleSheet + QLatin1String("</style>\n</head>\n<body>\n");
}

void HtmlWriter::writePage(const Page& page) {
    html_ += QLatin1String("<section>\n");
    if (page.header.text != nullptr) {
        writeHeader(*page.header.text, page.headerBegins);
    }
    besideUntil_ = 0;
    for (const PageItem& item : page.items) {
        std::visit([this](const auto& shown) { writeItem(shown); }, item);
    }
    writeFigure(nullptr);
    if (page.footer.text != nullptr) {
        html_ += QLatin1String("<footer>\n");
        writeParagraph(QLatin1String("p"), page.footer.text->text(), page.footer.text->style());
        html_ += QLatin1String("</footer>\n");
    }
    html_ += QLatin1String("</section>\n");
}

void HtmlWriter::writeHeader(const LaidText& header, bool begins) {
    // A header that goes on from the page before is no new heading.
    const QLatin1String tag(begins ? "h1" : "p");
    html_ += QLatin1String("<header>\n");
    writeParagraph(tag, header.text(), header.style());
    html_ += QLatin1String("</header>\n");
}

void HtmlWriter::writeItem(const TextLine& line) {
    if (line.positioned) {
        figure_.add(line);
        return;
    }
    writeFigure(&line);
    if (line.line > 0) {
        return; // the paragraph was written whole where it began
    }
    const TextStyle& style = line.text->style();
    const bool heading = style.bold && style.underline && style.points >= subHeadingPoints;
    const QLatin1String tag(!heading ? "p" : style.points >= headingPoints ? "h2" : "h3");
    const bool below = besideUntil_ > 0 && line.topLeft.y() >= besideUntil_;
    if (below) {
        besideUntil_ = 0;
    }
    writeParagraph(tag, line.text->text(), style, below);
}

void HtmlWriter::writeFigure(const TextLine* next) {
    if (figure_.isEmpty()) {
        return;
    }
    const QRectF place = figure_.bounds();
    const bool beside =
        next != nullptr && next->topLeft.x() >= place.right() && next->topLeft.y() < place.bottom();
    html_ += figure_.html(beside ? u"beside" : u"");
    if (beside) {
        besideUntil_ = place.bottom();
    }
    figure_ = {};
}

void HtmlWriter::writeParagraph(QLatin1String tag, const QString& text, const TextStyle& style, bool below) {
    html_ += u'<' + tag + (below ? QLatin1String(" class=\"below\"") : QLatin1String()) +
             (text.isRightToLeft() ? QLatin1String(" dir=\"rtl\"") : QLatin1String()) +
             QLatin1String(" style=\"");
    appendEscaped(html_, cssOf(style));
    html_ += QLatin1String("\">");
    QString closing = QLatin1String("</") + tag + QLatin1String(">\n");
    const std::pair<bool, QLatin1String> emphases[]{{style.bold, QLatin1String("b")},
                                                    {style.italic, QLatin1String("i")},
                                                    {style.underline, QLatin1String("u")},
                                                    {style.strikethrough, QLatin1String("s")}};
    for (const auto& [on, element] : emphases) {
        if (on) {
            html_ += u'<' + element + u'>';
            closing.prepend(QLatin1String("</") + element + u'>');
        }
    }
    if (text.isEmpty()) {
        html_ += QLatin1String("<br/>"); // an empty paragraph takes a line
    }
    appendLines(html_, text);
    html_ += closing;
}

} // namespace

QString titleOf(const PageDocument& document) {
    if (!document.title.isEmpty()) {
        return document.title.simplified();
    }
    for (const Page& page : document.pages) {
        if (page.header.text != nullptr) {
            return page.header.text->text().simplified();
        }
    }
    return QStringLiteral("Report");
}

QByteArray htmlOf(const PageDocument& document) {
    return HtmlWriter(document).write();
}
