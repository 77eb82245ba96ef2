#pragma once

#include <QByteArray>
#include <QString>
#include <pugixml.hpp>

#include <optional>
#include <vector>

/// Loads a file into an empty document: UTF-8, UTF-16 or UTF-32 by its mark or first bytes, or the encoding
/// that its declaration names. Document types and entities are kept as they stand and never expanded. False
/// for a file that is missing, does not parse, is not well encoded or holds no element; the document is
/// then empty.
[[nodiscard]] bool loadXmlFile(pugi::xml_document& document, const QString& path);

/// The same from text in memory.
bool loadXmlText(pugi::xml_document& document, const QByteArray& text);

/// The document as the file holds it: UTF-8, one element to a line.
[[nodiscard]] QByteArray fileText(const pugi::xml_document& document);

/// The same, read back first: nothing when the text would not load again.
[[nodiscard]] std::optional<QByteArray> loadableFileText(const pugi::xml_document& document);

/// A part of a text.
struct TextPiece {
    qsizetype start;
    qsizetype end;
};

/// Whether a text would load as a document. Each of the `pieces` must hold whole elements beside one another;
/// it is parsed by itself, and the document without them, so that the check needs little memory. A document
/// is well formed when both are.
[[nodiscard]] bool isLoadable(const QByteArray& text, const std::vector<TextPiece>& pieces);

/// Whether the text can be the name of an attribute.
[[nodiscard]] bool isXmlName(const QByteArray& name);

/// The text without the characters that no XML file can hold (control characters but tab and line breaks,
/// halves of surrogate pairs).
[[nodiscard]] QString storableText(const QString& text);
