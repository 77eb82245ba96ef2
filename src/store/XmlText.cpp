#include "store/XmlText.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <cstring>

namespace {

/// Everything that a file may hold besides white space between elements, so that nothing is lost on save.
constexpr unsigned int parseOptions = pugi::parse_default | pugi::parse_comments | pugi::parse_pi |
                                      pugi::parse_declaration | pugi::parse_doctype;

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}

/// The length of the UTF-8 character at `at`, or 0 when there is none (also for overlong forms, surrogates
/// and numbers above 10FFFF).
qsizetype characterLength(const unsigned char* at, qsizetype left) {
    const unsigned char first = *at;
    if (first < 0x80U) {
        return 1;
    }
    const qsizetype length = first >= 0xF0U ? 4 : first >= 0xE0U ? 3 : 2;
    if (first < 0xC2U || first > 0xF4U || length > left ||
        !std::all_of(at + 1, at + length, isContinuation)) {
        return 0;
    }
    const bool overlong = (first == 0xE0U && at[1] < 0xA0U) || (first == 0xF0U && at[1] < 0x90U);
    const bool outside = (first == 0xEDU && at[1] > 0x9FU) || (first == 0xF4U && at[1] > 0x8FU);
    return overlong || outside ? 0 : length;
}

bool isUtf8(const QByteArray& bytes) {
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.constData());
    const unsigned char* const end = at + bytes.size();
    while (at < end) {
        // Most of a record file is ASCII; eight bytes at a time keeps the check far below the parse.
        quint64 block = 0;
        while (end - at >= 8) {
            std::memcpy(&block, at, sizeof block);
            if ((block & 0x8080808080808080U) != 0) {
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

/// The file's bytes as UTF-8; nothing when they are not well encoded.
std::optional<QByteArray> asUtf8(QByteArray bytes) {
    if (looksWide(bytes)) {
        const auto encoding = QStringConverter::encodingForData(bytes, u'<');
        if (!encoding) {
            return std::nullopt;
        }
        QStringDecoder decode(*encoding);
        const QString text = decode(bytes);
        return decode.hasError() ? std::nullopt : std::optional(text.toUtf8());
    }
    const QByteArray encoding = declaredEncoding(bytes);
    if (!encoding.isEmpty() && encoding != "utf-8" && encoding != "us-ascii") {
        QStringDecoder decode(encoding.constData());
        if (!decode.isValid() || encoding.startsWith("utf-")) {
            return std::nullopt; // a wide encoding would have shown in the first bytes
        }
        const QString text = decode(bytes);
        return decode.hasError() ? std::nullopt : std::optional(text.toUtf8());
    }
    return isUtf8(bytes) ? std::optional(bytes) : std::nullopt;
}

} // namespace

bool loadXmlFile(pugi::xml_document& document, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError && loadXmlText(document, bytes);
}

bool loadXmlText(pugi::xml_document& document, const QByteArray& text) {
    const auto utf8 = asUtf8(text);
    const bool loaded = utf8 && document.load_buffer(utf8->constData(), static_cast<std::size_t>(utf8->size()),
                                                     parseOptions, pugi::encoding_utf8);
    if (!loaded || !document.document_element()) {
        document.reset();
        return false;
    }
    return true;
}

namespace {

/// Collects what the document writes.
class ByteArrayWriter final : public pugi::xml_writer {
public:
    explicit ByteArrayWriter(QByteArray& target)
        : target_(target) {}
    void write(const void* data, std::size_t size) override {
        target_.append(static_cast<const char*>(data), static_cast<qsizetype>(size));
    }

private:
    QByteArray& target_;
};

/// Files are written as UTF-8, whatever they were read from; a declaration must say so.
bool declaresOtherEncoding(const pugi::xml_document& document) {
    const pugi::xml_node first = document.first_child();
    const pugi::xml_attribute encoding = first.attribute("encoding");
    return first.type() == pugi::node_declaration && encoding &&
           QByteArray(encoding.value()).toLower() != "utf-8";
}

} // namespace

QByteArray fileText(const pugi::xml_document& document) {
    QByteArray text;
    ByteArrayWriter writer(text);
    const auto save = [&](const pugi::xml_document& each) {
        each.save(writer, "\t", pugi::format_indent | pugi::format_no_declaration, pugi::encoding_utf8);
    };
    if (declaresOtherEncoding(document)) {
        pugi::xml_document copy;
        copy.reset(document);
        copy.first_child().attribute("encoding").set_value("UTF-8");
        save(copy);
    } else {
        save(document);
    }
    return text;
}

bool isLoadable(const QByteArray& text) {
    pugi::xml_document document;
    return loadXmlText(document, text);
}

bool isXmlName(const QByteArray& name) {
    const auto isNameCharacter = [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte >= 0x80U || (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
               (byte >= '0' && byte <= '9') || std::strchr("_:-.", c) != nullptr;
    };
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), isNameCharacter) &&
           std::strchr("0123456789-.", name.front()) == nullptr;
}

QString storableText(const QString& text) {
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const bool pair = character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
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
