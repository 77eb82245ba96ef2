#pragma once

#include <QByteArray>

class QString;
struct PageDocument;

/// What a document is called: its title or, without one, its first header; "Report" where it has neither.
[[nodiscard]] QString titleOf(const PageDocument& document);

/// A document as one HTML page in UTF-8, complete in itself and well-formed XML at the same time: each page a
/// section, headings and paragraphs in their order, charts as pictures in lines and letters where they stand.
[[nodiscard]] QByteArray htmlOf(const PageDocument& document);
