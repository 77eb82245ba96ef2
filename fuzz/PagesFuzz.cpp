// Any calls on the page surface, and the HTML of what they wrote.

#include "FuzzWorld.h"
#include "reports/pages/HtmlWriter.h"
#include "reports/pages/PageSurface.h"

#include <QGuiApplication>
#include <pugixml.hpp>

#include <string_view>

namespace {

void operate(PageSurface& surface, FuzzInput& input) {
    constexpr std::uint8_t operations = 9;
    switch (input.byte() % operations) {
    case 0:
        surface.StartDoc();
        break;
    case 1:
        surface.EndDoc();
        break;
    case 2:
        surface.NewPage();
        break;
    case 3:
        surface.TextBox(input.text(), input.number(), input.number(), input.number(), input.number());
        break;
    case 4:
        surface.DrawCircle(input.number(), input.number(), input.number());
        break;
    case 5:
        surface.DrawCircle(input.number(), input.number(), input.number(), input.number(), input.number());
        break;
    case 6:
        surface.DrawRectangle(input.number(), input.number(), input.number(), input.number());
        break;
    case 7: {
        const auto property =
            static_cast<SurfaceProperty>(input.byte() % (static_cast<int>(SurfaceProperty::ZoomMode) + 1));
        if (property == SurfaceProperty::ExportFile) {
            break; // never a file of the machine's own
        }
        const bool isText = (input.byte() & 1U) != 0;
        surface.setProperty(property, isText ? QVariant(input.text()) : QVariant(input.number()));
        break;
    }
    default:
        surface.Write(input.text());
    }
}

/// The element names that the writer uses; whatever a user types must not add one.
bool isOurs(std::string_view name) {
    constexpr std::string_view names = " html head meta title style body section header footer figure main "
                                       "div p h1 h2 h3 span b u i strong em s br svg "
                                       "g path circle rect text tspan line hr ";
    return names.find(' ' + std::string(name) + ' ') != std::string_view::npos;
}

struct ElementCheck final : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node& node) override {
        if (node.type() == pugi::node_element && !isOurs(node.name())) {
            broken(QStringLiteral("no text becomes markup: ") + QString::fromUtf8(node.name()));
        }
        return true;
    }
};

void checkHtml(const PageSurface& surface) {
    const QByteArray html = htmlOf(surface.document());
    pugi::xml_document parsed;
    const auto result = parsed.load_buffer(html.constData(), static_cast<std::size_t>(html.size()),
                                           pugi::parse_default | pugi::parse_doctype, pugi::encoding_utf8);
    if (!result) {
        broken(QStringLiteral("the HTML is well formed: ") + QString::fromUtf8(result.description()));
    }
    ElementCheck check;
    parsed.traverse(check);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzWorld world;
    FuzzInput input(data, size);
    PageSurface surface(QSizeF(11906, 16838));
    surface.StartDoc();
    constexpr int mostOperations = 64; // a page takes time to lay out
    for (int i = 0; i < mostOperations && !input.atEnd(); ++i) {
        operate(surface, input);
    }
    surface.EndDoc();
    checkHtml(surface);
    return 0;
}
