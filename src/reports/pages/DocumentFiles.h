#pragma once

class QIODevice;
class QString;
struct PageDocument;

/// Writes a document as one self-contained HTML file. Throws a Failure when the file cannot be written; what
/// stood there before is then kept wherever its folder can hold both.
void writeHtml(const PageDocument& document, const QString& path);

/// Writes a document as a PDF file with the pages as they are printed. Throws a Failure as `writeHtml` does.
void writePdf(const PageDocument& document, const QString& path);

/// The same onto an open device. Throws a Failure when the device refuses.
void writePdf(const PageDocument& document, QIODevice& device);
