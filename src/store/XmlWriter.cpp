#include "store/XmlText.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

namespace {

/// No record lies deeper; a hostile file could otherwise grow with the square of its depth.
constexpr int deepestIndent = 16;

/// A text that grows at its end. Most pieces are a few bytes long, so appending one must cost next to
/// nothing.
class TextBuffer {
public:
    void append(const char* text, std::size_t size) {
        if (static_cast<std::size_t>(bytes_.size()) - used_ < size) {
            bytes_.resize(static_cast<qsizetype>(std::max<std::size_t>((used_ + size) * 2, 4096)));
            start_ = bytes_.data();
        }
        std::memcpy(start_ + used_, text, size);
        used_ += size;
    }
    void append(const char* text) { append(text, std::strlen(text)); }
    void append(char character) { append(&character, 1); }

    [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(used_); }

    [[nodiscard]] QByteArray take() {
        bytes_.truncate(static_cast<qsizetype>(used_));
        return std::move(bytes_);
    }

private:
    QByteArray bytes_;
    char* start_ = nullptr;
    std::size_t used_ = 0;
};

enum class Place { Attribute, Text };

/// Which bytes must be written as a reference. Tabs and line breaks inside an attribute would be read back as
/// blanks, a carriage return in a text as a line feed.
constexpr std::array<bool, 256> escapedBytes(Place place) {
    std::array<bool, 256> escaped = {};
    for (std::size_t byte = 0; byte < 0x20; ++byte) {
        escaped[byte] = place == Place::Attribute || (byte != '\t' && byte != '\n');
    }
    for (const char character : {'&', '<', '>'}) {
        escaped[static_cast<unsigned char>(character)] = true;
    }
    escaped['"'] = place == Place::Attribute;
    return escaped;
}

/// Writes a document as its file holds it.
class XmlWriter {
public:
    explicit XmlWriter(const pugi::xml_document& document)
        : document_(document) {}

    /// Walks the tree without recursion: its depth is the file's.
    QByteArray write() {
        pugi::xml_node node = document_.first_child();
        while (node) {
            if (depth_ == recordDepth && !inline_) {
                markRecord();
            }
            startLine();
            if (writeOpening(node)) {
                if (!inline_ && holdsText(node)) {
                    inline_ = node;
                }
                endLine();
                ++depth_;
                node = node.first_child();
                continue;
            }
            endLine();
            while (node && !node.next_sibling()) {
                node = node.parent();
                writeClosing(node);
            }
            node = node.next_sibling();
        }
        return text_.take();
    }

    /// Where the text can be taken apart: runs of whole records, in order.
    [[nodiscard]] const std::vector<TextPiece>& pieces() const { return pieces_; }

private:
    /// Records are the children of the root's children.
    static constexpr int recordDepth = 2;
    static constexpr qsizetype pieceSize = qsizetype(16) * 1024;

    void markRecord() {
        const qsizetype at = text_.size();
        if (inPiece_ && at - pieces_.back().start < pieceSize) {
            return;
        }
        closePiece();
        pieces_.push_back({at, at});
        inPiece_ = true;
    }

    void closePiece() {
        if (inPiece_) {
            pieces_.back().end = text_.size();
            inPiece_ = false;
        }
    }

    /// Blanks would change an element that holds text.
    static bool holdsText(const pugi::xml_node& element) {
        const auto children = element.children();
        return std::any_of(children.begin(), children.end(), [](const pugi::xml_node& child) {
            return child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata;
        });
    }

    void startLine() {
        for (int i = 0; !inline_ && i < std::min(depth_, deepestIndent); ++i) {
            text_.append('\t');
        }
    }

    void endLine() {
        if (!inline_) {
            text_.append('\n');
        }
    }

    /// True for an element whose content must follow.
    bool writeOpening(const pugi::xml_node& node) {
        switch (node.type()) {
        case pugi::node_element:
            text_.append('<');
            text_.append(node.name());
            writeAttributes(node);
            text_.append(node.first_child() ? ">" : " />");
            return static_cast<bool>(node.first_child());
        case pugi::node_declaration:
            text_.append("<?");
            text_.append(node.name());
            writeAttributes(node);
            text_.append("?>");
            return false;
        case pugi::node_pcdata:
            writeEscaped(node.value(), Place::Text);
            return false;
        case pugi::node_cdata:
            writeBetween("<![CDATA[", node.value(), "]]>");
            return false;
        case pugi::node_comment:
            writeBetween("<!--", node.value(), "-->");
            return false;
        case pugi::node_doctype:
            writeBetween("<!DOCTYPE ", node.value(), ">");
            return false;
        case pugi::node_pi:
            writeBetween("<?", node.name(), *node.value() == '\0' ? "" : " ");
            writeBetween("", node.value(), "?>");
            return false;
        default:
            return false;
        }
    }

    void writeClosing(const pugi::xml_node& node) {
        if (node.type() != pugi::node_element) {
            return; // the document itself
        }
        --depth_;
        if (depth_ < recordDepth) {
            closePiece();
        }
        startLine();
        writeBetween("</", node.name(), ">");
        if (inline_ == node) {
            inline_ = pugi::xml_node();
        }
        endLine();
    }

    void writeAttributes(const pugi::xml_node& node) {
        const bool declaration = node.type() == pugi::node_declaration;
        for (pugi::xml_attribute attribute = node.first_attribute(); attribute;
             attribute = attribute.next_attribute()) {
            text_.append(' ');
            text_.append(attribute.name());
            text_.append("=\"", 2);
            // Files are written as UTF-8, whatever they were read from; the declaration must say so.
            const bool replaced = declaration && namesOtherEncoding(attribute);
            writeEscaped(replaced ? "UTF-8" : attribute.value(), Place::Attribute);
            text_.append('"');
        }
    }

    static bool namesOtherEncoding(const pugi::xml_attribute& attribute) {
        return std::strcmp(attribute.name(), "encoding") == 0 &&
               QByteArrayView(attribute.value()).compare("utf-8", Qt::CaseInsensitive) != 0;
    }

    void writeBetween(const char* before, const char* value, const char* after) {
        text_.append(before);
        text_.append(value);
        text_.append(after);
    }

    void writeEscaped(const char* value, Place place) {
        static constexpr std::array<bool, 256> inAttributes = escapedBytes(Place::Attribute);
        static constexpr std::array<bool, 256> inTexts = escapedBytes(Place::Text);
        const std::array<bool, 256>& escaped = place == Place::Attribute ? inAttributes : inTexts;
        while (true) {
            const char* end = value;
            while (!escaped[static_cast<unsigned char>(*end)]) {
                ++end;
            }
            text_.append(value, static_cast<std::size_t>(end - value));
            if (*end == '\0') {
                return;
            }
            writeReference(*end);
            value = end + 1;
        }
    }

    void writeReference(char character) {
        switch (character) {
        case '&':
            return text_.append("&amp;");
        case '<':
            return text_.append("&lt;");
        case '>':
            return text_.append("&gt;");
        case '"':
            return text_.append("&quot;");
        default:
            text_.append("&#");
            text_.append(QByteArray::number(static_cast<int>(character)).constData());
            text_.append(';');
        }
    }

    const pugi::xml_document& document_;
    TextBuffer text_;
    int depth_ = 0;
    /// The outermost element with text in it that the walk is inside of.
    pugi::xml_node inline_;
    std::vector<TextPiece> pieces_;
    bool inPiece_ = false;
};

} // namespace

QByteArray fileText(const pugi::xml_document& document) {
    return XmlWriter(document).write();
}

std::optional<QByteArray> loadableFileText(const pugi::xml_document& document) {
    XmlWriter writer(document);
    QByteArray text = writer.write();
    return isLoadable(text, writer.pieces()) ? std::optional(text) : std::nullopt;
}
