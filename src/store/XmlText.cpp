#include "store/XmlText.h"

#include <QByteArrayView>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <utility>

namespace {

/// Everything that a file may hold besides white space between elements, so that nothing is lost on save.
/// Text outside the root element is read too, only to be refused.
constexpr unsigned int parseOptions = pugi::parse_default | pugi::parse_comments | pugi::parse_pi |
                                      pugi::parse_declaration | pugi::parse_doctype | pugi::parse_fragment;

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}

/// The length of the UTF-8 character at `at`, or 0 when there is none that a document may hold (also for
/// overlong forms, surrogates, numbers above 10FFFF and control characters).
qsizetype characterLength(const unsigned char* at, qsizetype left) {
    const unsigned char first = *at;
    if (first < 0x80U) {
        return first >= 0x20U || first == '\t' || first == '\n' || first == '\r' ? 1 : 0;
    }
    const qsizetype length = first >= 0xF0U ? 4 : first >= 0xE0U ? 3 : 2;
    if (first < 0xC2U || first > 0xF4U || length > left ||
        !std::all_of(at + 1, at + length, isContinuation)) {
        return 0;
    }
    const bool overlong = (first == 0xE0U && at[1] < 0xA0U) || (first == 0xF0U && at[1] < 0x90U);
    const bool outside = (first == 0xEDU && at[1] > 0x9FU) || (first == 0xF4U && at[1] > 0x8FU) ||
                         (first == 0xEFU && at[1] == 0xBFU && at[2] >= 0xBEU);
    return overlong || outside ? 0 : length;
}

/// Most of a record file is ASCII: so many bytes at a time keep the check far below the parse.
constexpr qsizetype blockSize = 64;

/// Whether a block is all printable ASCII, tabs and line ends. Without a branch in the loop, so that the
/// compiler compares many bytes at once.
bool isPlain(const unsigned char* block) {
    unsigned char other = 0;
    for (qsizetype i = 0; i < blockSize; ++i) {
        const auto byte = static_cast<signed char>(block[i]); // negative from 80 hexadecimal on
        const bool isOther = (byte < 0x20) & (byte != '\t') & (byte != '\n') & (byte != '\r');
        other |= static_cast<unsigned char>(isOther);
    }
    return other == 0;
}

bool isUtf8(const QByteArray& bytes) {
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.constData());
    const unsigned char* const end = at + bytes.size();
    while (at < end) {
        if (end - at >= blockSize && isPlain(at)) {
            at += blockSize;
            continue;
        }
        const unsigned char* const blockEnd = at + std::min(blockSize, static_cast<qsizetype>(end - at));
        while (at < blockEnd) {
            const qsizetype length = characterLength(at, end - at);
            if (length == 0) {
                return false;
            }
            at += length;
        }
    }
    return true;
}

/// The encoding that the declaration names, in lower case; empty when it names none.
QByteArray declaredEncoding(const QByteArray& bytes) {
    const QByteArray head = bytes.left(256);
    const qsizetype end = head.indexOf("?>");
    if (!head.startsWith("<?xml") || end < 0) {
        return {};
    }
    const QByteArray declaration = head.left(end);
    const qsizetype name = declaration.indexOf("encoding");
    const qsizetype single = declaration.indexOf('\'', name);
    const qsizetype twofold = declaration.indexOf('"', name);
    if (name < 0 || (single < 0 && twofold < 0)) {
        return {};
    }
    const qsizetype open = single < 0 ? twofold : twofold < 0 ? single : std::min(single, twofold);
    const qsizetype close = declaration.indexOf(declaration.at(open), open + 1);
    return close < 0 ? QByteArray() : declaration.mid(open + 1, close - open - 1).trimmed().toLower();
}

bool looksWide(const QByteArray& bytes) {
    const QByteArray head = bytes.left(4);
    return head.startsWith("\xFF\xFE") || head.startsWith("\xFE\xFF") || head.contains('\0');
}

/// The bytes of a file in another encoding as UTF-8; nothing when they are not well encoded.
std::optional<QByteArray> decoded(const QByteArray& bytes) {
    const QByteArray declared = declaredEncoding(bytes);
    QStringDecoder decode;
    if (looksWide(bytes)) {
        const auto wide = QStringConverter::encodingForData(bytes, u'<');
        decode = wide ? QStringDecoder(*wide) : QStringDecoder();
    } else if (!declared.startsWith("utf-")) { // a wide encoding would have shown in the first bytes
        decode = QStringDecoder(declared.constData());
    }
    if (!decode.isValid()) {
        return std::nullopt;
    }
    const QString text = decode(bytes);
    return decode.hasError() || !text.isValidUtf16() ? std::nullopt : std::optional(text.toUtf8());
}

/// Whether text stands beside the elements of a document.
bool holdsText(const pugi::xml_document& document) {
    const auto nodes = document.children();
    return std::any_of(nodes.begin(), nodes.end(), [](const pugi::xml_node& node) {
        return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
    });
}

bool hasOneRoot(const pugi::xml_document& document) {
    const auto nodes = document.children();
    return !holdsText(document) && std::count_if(nodes.begin(), nodes.end(), [](const pugi::xml_node& node) {
                                       return node.type() == pugi::node_element;
                                   }) == 1;
}

/// A buffer that a document may own.
struct FreeBuffer {
    void operator()(void* buffer) const { pugi::get_memory_deallocation_function()(buffer); }
};
using Buffer = std::unique_ptr<char, FreeBuffer>;

Buffer allocated(std::size_t size) {
    Buffer buffer(static_cast<char*>(pugi::get_memory_allocation_function()(size)));
    if (!buffer) {
        throw std::bad_alloc();
    }
    return buffer;
}

/// Parses `size` bytes and the closing NUL behind them in place. The document owns the buffer from then on.
bool parse(pugi::xml_document& document, Buffer buffer, std::size_t size) {
    const bool parsed =
        document.load_buffer_inplace_own(buffer.release(), size + 1, parseOptions, pugi::encoding_utf8) &&
        hasOneRoot(document);
    if (!parsed) {
        document.reset();
    }
    return parsed;
}

/// Whether the bytes can be parsed as they stand.
bool needsNoDecoding(const QByteArray& bytes) {
    const QByteArray encoding = declaredEncoding(bytes);
    return !looksWide(bytes) && (encoding.isEmpty() || encoding == "utf-8" || encoding == "us-ascii");
}

} // namespace

bool loadXmlFile(pugi::xml_document& document, const QString& path) {
    QFile file(path);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    // The usual file is read once, to where it is parsed.
    const auto size = static_cast<std::size_t>(file.size());
    Buffer buffer = allocated(size + 1);
    if (file.read(buffer.get(), static_cast<qint64>(size)) != static_cast<qint64>(size)) {
        return false;
    }
    buffer.get()[size] = '\0';
    const QByteArray bytes = QByteArray::fromRawData(buffer.get(), static_cast<qsizetype>(size));
    if (!needsNoDecoding(bytes)) {
        return loadXmlText(document, bytes);
    }
    return isUtf8(bytes) && parse(document, std::move(buffer), size);
}

bool loadXmlText(pugi::xml_document& document, const QByteArray& text) {
    const auto utf8 = needsNoDecoding(text) ? std::optional(text) : decoded(text);
    if (!utf8 || !isUtf8(*utf8)) {
        return false;
    }
    const auto size = static_cast<std::size_t>(utf8->size());
    Buffer buffer = allocated(size + 1);
    std::memcpy(buffer.get(), utf8->constData(), size);
    buffer.get()[size] = '\0';
    return parse(document, std::move(buffer), size);
}

bool isLoadable(const QByteArray& text, const std::vector<TextPiece>& pieces) {
    if (!isUtf8(text)) {
        return false;
    }
    pugi::xml_document document;
    QByteArray frame;
    qsizetype at = 0;
    for (const TextPiece& piece : pieces) {
        const bool parsed = document.load_buffer(text.constData() + piece.start,
                                                 static_cast<std::size_t>(piece.end - piece.start),
                                                 parseOptions, pugi::encoding_utf8);
        if (!parsed || holdsText(document)) {
            return false;
        }
        frame.append(text.constData() + at, piece.start - at);
        at = piece.end;
    }
    frame.append(text.constData() + at, text.size() - at);
    return loadXmlText(document, frame);
}

bool isXmlName(const QByteArray& name) {
    const auto isNameCharacter = [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte >= 0x80U || (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
               (byte >= '0' && byte <= '9') || QByteArrayView("_:-.").contains(c);
    };
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), isNameCharacter) &&
           !QByteArrayView("0123456789-.").contains(name.front());
}

QString storableText(const QString& text) {
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const bool pair =
            character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (pair) {
            kept += character;
            kept += text.at(++i);
        } else if (!character.isSurrogate() && character.unicode() < 0xFFFE &&
                   (character.unicode() >= 0x20 || QStringView(u"\t\n\r").contains(character))) {
            kept += character;
        }
    }
    return kept;
}
