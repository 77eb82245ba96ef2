#include "store/XmlText.h"

#include <QByteArrayView>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>
#include <cstring>
#include <new>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

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

/// Whether eight bytes at once are all printable ASCII.
bool isPlain(quint64 block) {
    constexpr quint64 highBits = 0x8080808080808080U;
    constexpr quint64 blanks = 0x2020202020202020U;
    return (block & highBits) == 0 && ((block - blanks) & highBits) == 0;
}

bool isUtf8(const QByteArray& bytes) {
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.constData());
    const unsigned char* const end = at + bytes.size();
    while (at < end) {
        // Most of a record file is ASCII; eight bytes at a time keeps the check far below the parse.
        quint64 block = 0;
        while (end - at >= 8) {
            std::memcpy(&block, at, sizeof block);
            if (!isPlain(block)) {
                break;
            }
            at += 8;
        }
        if (at == end) {
            break;
        }
        const qsizetype length = characterLength(at, end - at);
        if (length == 0) {
            return false;
        }
        at += length;
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

std::optional<QByteArray> decoded(QStringDecoder decode, const QByteArray& bytes) {
    const QString text = decode(bytes);
    return decode.hasError() || !text.isValidUtf16() ? std::nullopt : std::optional(text.toUtf8());
}

/// The file's bytes as UTF-8; nothing when they are not well encoded.
std::optional<QByteArray> asUtf8(const QByteArray& bytes) {
    std::optional<QByteArray> utf8 = bytes;
    const QByteArray encoding = declaredEncoding(bytes);
    if (looksWide(bytes)) {
        const auto wide = QStringConverter::encodingForData(bytes, u'<');
        utf8 = wide ? decoded(QStringDecoder(*wide), bytes) : std::nullopt;
    } else if (!encoding.isEmpty() && encoding != "utf-8" && encoding != "us-ascii") {
        QStringDecoder decoder(encoding.constData());
        // A wide encoding would have shown in the first bytes.
        const bool usable = decoder.isValid() && !encoding.startsWith("utf-");
        utf8 = usable ? decoded(std::move(decoder), bytes) : std::nullopt;
    }
    return utf8 && isUtf8(*utf8) ? utf8 : std::nullopt;
}

/// Whether a document holds one root element and no text beside it.
bool hasOneRoot(const pugi::xml_document& document) {
    int roots = 0;
    for (const pugi::xml_node node : document.children()) {
        roots += node.type() == pugi::node_element ? 1 : 0;
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) {
            return false;
        }
    }
    return roots == 1;
}

/// Finds elements that carry an attribute twice. Records carry the same attributes in the same order, so that
/// one comparison with the record before settles most of them.
class AttributeNames {
public:
    bool areUnique(const pugi::xml_node& element) {
        std::size_t same = 0;
        std::size_t count = 0;
        for (const pugi::xml_attribute& attribute : element.attributes()) {
            if (same == count && same < known_.size() && std::strcmp(known_[same], attribute.name()) == 0) {
                ++same;
            }
            ++count;
        }
        if (same == count) {
            return true;
        }
        known_.clear();
        for (const pugi::xml_attribute& attribute : element.attributes()) {
            known_.push_back(attribute.name());
        }
        std::vector<std::string_view> sorted(known_.begin(), known_.end());
        std::sort(sorted.begin(), sorted.end());
        return std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end();
    }

private:
    std::vector<const char*> known_;
};

bool hasUniqueAttributes(const pugi::xml_document& document) {
    AttributeNames names;
    pugi::xml_node node = document.first_child();
    while (node) {
        if (!names.areUnique(node)) {
            return false;
        }
        pugi::xml_node next = node.first_child();
        while (node && !next) {
            next = node.next_sibling();
            node = node.parent();
        }
        node = next;
    }
    return true;
}

/// Parses in place, in a buffer that the document then owns.
bool parse(pugi::xml_document& document, const QByteArray& utf8) {
    const auto size = static_cast<std::size_t>(utf8.size()) + 1; // with the closing NUL
    void* buffer = pugi::get_memory_allocation_function()(size);
    if (buffer == nullptr) {
        throw std::bad_alloc();
    }
    std::memcpy(buffer, utf8.constData(), size);
    return document.load_buffer_inplace_own(buffer, size, parseOptions, pugi::encoding_utf8) &&
           hasOneRoot(document) && hasUniqueAttributes(document);
}

} // namespace

bool loadXmlFile(pugi::xml_document& document, const QString& path) {
    QFile file(path);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError && loadXmlText(document, bytes);
}

bool loadXmlText(pugi::xml_document& document, const QByteArray& text) {
    const auto utf8 = asUtf8(text);
    if (!utf8 || !parse(document, *utf8)) {
        document.reset();
        return false;
    }
    return true;
}

bool isLoadable(const QByteArray& text) {
    pugi::xml_document document;
    return loadXmlText(document, text);
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
