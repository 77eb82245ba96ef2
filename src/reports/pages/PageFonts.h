#pragma once

#include "reports/pages/TextStyle.h"

#include <QFont>
#include <QHash>

#include <map>
#include <tuple>

/// A font in page units: one of its pixels is one twip, so whatever is measured with it is in twips.
struct PageFont {
    QFont font;
    /// From the top of a line to its base line, in twips.
    double ascent = 0;
    /// From one line to the next, in twips.
    double lineHeight = 0;
};

/// The fonts of a page surface. A face is the same on every machine that has Arial or one of the faces cut
/// to its measures, whatever other fonts are installed.
class PageFonts {
public:
    /// The name of the default face.
    [[nodiscard]] static QString defaultFace();

    /// The face that stands for the one asked for: empty, which means the default one, for the default
    /// face itself and for every name that the machine does not know.
    [[nodiscard]] QString resolve(const QString& asked);

    /// The font of a style whose face was resolved. Without the underline, which the text draws itself.
    [[nodiscard]] const PageFont& font(const TextStyle& style);

private:
    using Key = std::tuple<QString, int, bool, bool, bool>;

    QHash<QString, QString> resolved_;
    std::map<Key, PageFont> fonts_;
};
