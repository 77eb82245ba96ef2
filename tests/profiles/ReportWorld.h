#pragma once

#include "catalogues/cElement.h"
#include "profiles/cProfile.h"
#include "reports/surface/NullSurface.h"
#include "reports/surface/RecordingSurface.h"
#include "support/RecordFiles.h"
#include "support/RecordedReport.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

using Calls = std::vector<std::string>;

inline Calls joined(const std::vector<Calls>& parts) {
    Calls all;
    for (const Calls& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

/// A wedge of a figure as it reaches the page.
struct DrawnWedge {
    int color = 0;
    double radius = 0;
    double from = 0;
    double to = 0;
};

/// Made-up reference tables whose values tell where they come from: colour n is 100 + n, light 200 + n and
/// bright 300 + n; direction n has colour n; element n has colour 10 + n and texts like "[name n]"; it
/// supports the next element but one is destroyed by the one before. The elements of the directions are those
/// of the real table.
class ReportWorld : public testing::Test {
protected:
    ReportWorld() {
        QByteArrayList colors;
        for (int id = 1; id <= 15; ++id) {
            colors << colorRow(id, 100 + id);
        }
        world.write(QStringLiteral("Colors.xml"), recordFile(colors));
        world.write(
            QStringLiteral("Elements.xml"),
            recordFile({elementRow(1, "2", 5, 3, 4), elementRow(2, "3", 1, 4, 5), elementRow(3, "4", 2, 5, 1),
                        elementRow(4, "5", 3, 1, 2), elementRow(5, "1", 4, 2, 3)}));
    }

    static QByteArray colorRow(int id, int value) {
        return "<z:row COLORID='" + QByteArray::number(id) + "' COLORNAME='Colour' COLORVALUE='" +
               QByteArray::number(value) + "' LIGHTCOLORVALUE='" + QByteArray::number(200 + id) +
               "' BRIGHTCOLORVALUE='" + QByteArray::number(300 + id) + "'/>";
    }

    static QByteArray elementRow(int id, const QByteArray& supports, int supportedBy, int destroys,
                                 int destroyedBy) {
        const QByteArray number = QByteArray::number(id);
        QByteArray row = "<z:row ELEMENTID='" + number + '\'';
        constexpr std::array<std::pair<const char*, const char*>, 6> texts{{
            {"ELEMENTNAME", "name"},
            {"DESCRIPTION", "description"},
            {"DIRECTIONS", "directions"},
            {"DECORATINGCOLORS", "colors"},
            {"DECORATINGPATTERNS", "patterns"},
            {"DECORATINGMATERIALS", "materials"},
        }};
        for (const auto& [attribute, word] : texts) {
            row += QByteArray(" ") + attribute + "='[" + word + ' ' + number + "]'";
        }
        return row + " SUPPORTSELEMENTID='" + supports + "' SUPPORTEDBYELEMENTID='" +
               QByteArray::number(supportedBy) + "' DESTROYSELEMENTID='" + QByteArray::number(destroys) +
               "' DESTROYEDBYELEMENTID='" + QByteArray::number(destroyedBy) + "' COLORID='" +
               QByteArray::number(10 + id) + "'/>";
    }

    /// A person whose every field is a word that names it, of colour 8 and element 1, and for whom each of
    /// the eight directions means something else.
    static void fill(cProfile& person) {
        person.PROFILENAME = QStringLiteral("[person]");
        person.KUANUMBER = 8;
        person.ADJBIRTHYEAR = 1965;
        person.oDirection.DIRECTIONNAME = QStringLiteral("[direction]");
        person.oDirection.SUMMARY = QStringLiteral("[summary]");
        person.oColor.GetColor(8);
        person.oColor.COLORNAME = QStringLiteral("[color]");
        person.oSymbol.SYMBOLNAME = QStringLiteral("[symbol]");
        person.oAnimal.AnimalName = QStringLiteral("[animal]");
        person.oTOD.TODNAME = QStringLiteral("[time]");
        person.oTrigram.TRIGRAMNAME = QStringLiteral("[trigram]");
        person.oElement.GetElement(1);
        cPersonalDirection& directions = person.oPersonalDirection;
        directions.SUCCESSDIRECTIONID = 2;
        directions.SUCCESSDIRECTION = QStringLiteral("[success]");
        directions.HEALTHDIRECTIONID = 6;
        directions.HEALTHDIRECTION = QStringLiteral("[health]");
        directions.ROMANCEDIRECTIONID = 7;
        directions.ROMANCEDIRECTION = QStringLiteral("[romance]");
        directions.DEVELOPMENTDIRECTIONID = 8;
        directions.DEVELOPMENTDIRECTION = QStringLiteral("[development]");
        directions.BADLUCKDIRECTIONID = 9;
        directions.BADLUCKDIRECTION = QStringLiteral("[badluck]");
        directions.OBSTACLEDIRECTIONID = 1;
        directions.OBSTACLEDIRECTION = QStringLiteral("[obstacle]");
        directions.ILLNESSDIRECTIONID = 3;
        directions.ILLNESSDIRECTION = QStringLiteral("[illness]");
        directions.DESTRUCTIONDIRECTIONID = 4;
        directions.DESTRUCTIONDIRECTION = QStringLiteral("[destruction]");
    }

    /// What every heading leaves behind.
    static Calls heading(const std::string& text) {
        return {R"(FontName("Arial"))",
                "IndentLeft(0)",
                "FontBold(true)",
                "FontUnderline(true)",
                "FontSize(14)",
                "TextColor(0)",
                R"(Write(")" + text + R"("))",
                R"(FontName("Arial"))",
                "FontBold(false)",
                "FontItalic(false)",
                "FontUnderline(false)",
                "FontSize(11)",
                "TextColor(0)",
                "TextAngle(0)",
                "TextAlign(6)",
                "IndentLeft(0)",
                "IndentFirst(0)",
                "IndentRight(0)",
                "IndentTab(720)",
                "SpaceAfter(130)",
                "PenColor(0)",
                "PenStyle(0)",
                "PenWidth(1)",
                "BrushColor(8421631)",
                "BrushStyle(0)"};
    }

    static Calls header(const std::string& text) {
        return {"HdrColor(0)",          R"(HdrFontName("Ariel"))",     "HdrFontBold(true)",
                "HdrFontItalic(false)", "HdrFontStrikethru(false)",    "HdrFontUnderline(false)",
                "HdrFontSize(14)",      R"(Header(")" + text + R"("))"};
    }

    /// On a page of letter height, which the recording target has.
    static Calls band(int background, int colors) {
        const std::string color = '(' + std::to_string(colors) + ')';
        return {"BackColor(" + std::to_string(background) + ')', "PenColor" + color, "BrushColor" + color,
                "DrawRectangle(700,500,4600,15340)"};
    }

    [[nodiscard]] static Calls written(const std::vector<std::string>& texts) {
        Calls all;
        for (const std::string& text : texts) {
            all.push_back(R"(Write(")" + text + R"("))");
        }
        return all;
    }

    /// The wedges that were drawn, full circles left out.
    [[nodiscard]] std::vector<DrawnWedge> wedges() const {
        std::vector<DrawnWedge> found;
        DrawnWedge next;
        for (const SurfaceCall& call : report.calls()) {
            if (call.op == QStringLiteral("BrushColor")) {
                next.color = call.args.at(0).toInt();
            } else if (call.op == QStringLiteral("DrawCircle") && call.args.size() == 5) {
                next.radius = call.args.at(2).toDouble();
                next.from = call.args.at(3).toDouble();
                next.to = call.args.at(4).toDouble();
                found.push_back(next);
            }
        }
        return found;
    }

    void expectObjectNotSet(const QString& label, int times) {
        for (int i = 0; i < times; ++i) {
            world.prompts.expectError(label, 91,
                                      QStringLiteral("Object variable or With block variable not set"));
        }
    }

    /// Runs a builder on a surface that fails at one operation, from its nth call on.
    template<class Builder>
    Calls callsOnSurfaceFailingAt(const QString& op, int nth, Builder&& build) {
        NullSurface target;
        Calls calls;
        int seen = 0;
        RecordingSurface vp(target, [&](const SurfaceCall& call) {
            if (call.op == op && ++seen >= nth) {
                throw failure(ErrorNumber::DeviceError);
            }
            calls.push_back(spelled(call));
        });
        build(vp);
        return calls;
    }

    TestWorld world;
    RecordedReport report;
};
