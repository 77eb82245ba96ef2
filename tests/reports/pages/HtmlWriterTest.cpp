#include "reports/pages/HtmlWriter.h"

#include "reports/pages/PageSurfaceFixture.h"

#include <QXmlStreamReader>

namespace {

/// An element as an XML parser sees it, with its text; line breaks count as "\n".
struct Element {
    QString name;
    QString path;
    QString text;
    QXmlStreamAttributes attributes;

    [[nodiscard]] QString attribute(const char* key) const {
        return attributes.value(QLatin1String(key)).toString();
    }
};

class HtmlWriterTest : public PageSurfaceFixture {
protected:
    /// All elements of the document's HTML in the order in which they begin. Fails the test when the file is
    /// no well-formed XML.
    [[nodiscard]] std::vector<Element> elements() const {
        QXmlStreamReader reader(htmlOf(surface.document()));
        std::vector<Element> found;
        std::vector<std::size_t> open;
        QStringList path;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement()) {
                path += reader.name().toString();
                open.push_back(found.size());
                found.push_back({path.last(), path.join(u'/'), {}, reader.attributes()});
            }
            if (reader.isEndElement()) {
                path.removeLast();
                open.pop_back();
            }
            const bool isBreak = reader.isStartElement() && reader.name() == QLatin1String("br");
            for (const std::size_t index : open) {
                found[index].text += isBreak                 ? QStringLiteral("\n")
                                     : reader.isCharacters() ? reader.text().toString()
                                                             : QString();
            }
        }
        EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
        return found;
    }

    [[nodiscard]] std::vector<Element> named(const char* name) const {
        std::vector<Element> found = elements();
        std::erase_if(found, [name](const Element& element) { return element.name != QLatin1String(name); });
        return found;
    }

    [[nodiscard]] QStringList textsOf(const char* name) const {
        QStringList texts;
        for (const Element& element : named(name)) {
            texts += element.text;
        }
        return texts;
    }

    void write(const QStringList& texts) {
        surface.StartDoc();
        for (const QString& text : texts) {
            surface.Write(text);
        }
        surface.EndDoc();
    }

    void writeLabel(const QString& text, double x, double y) {
        surface.CurrentY(y);
        surface.CurrentX(x);
        surface.Write(text);
    }
};

TEST_F(HtmlWriterTest, paragraphs_standInOrderWithTheirTextUnchanged) {
    const QStringList texts{QStringLiteral("one  two   three "), QStringLiteral(" leading"), QString(),
                            QStringLiteral("\tNorth\r\n\tSouth")};
    write(texts);
    EXPECT_EQ(textsOf("p"), (QStringList{texts.at(0), texts.at(1), QStringLiteral("\n"),
                                         QStringLiteral("\tNorth\n\tSouth")}));
}

TEST_F(HtmlWriterTest, emphasisSizeAndColor_areWritten) {
    surface.StartDoc();
    surface.FontBold(true);
    surface.FontItalic(true);
    surface.FontUnderline(true);
    surface.FontSize(11.5);
    surface.TextColor(0x0000FF);
    surface.Write(QStringLiteral("emphatic"));
    surface.EndDoc();
    EXPECT_EQ(named("u").at(0).path, QStringLiteral("html/body/section/p/b/i/u"));
    EXPECT_EQ(named("p").at(0).attribute("style"), QStringLiteral("font-size:11.5pt;color:#ff0000"));
}

TEST_F(HtmlWriterTest, headings_areHeadings) {
    surface.StartDoc();
    modRooms::PrintHeading(surface, QStringLiteral("Elements"), 0);
    modRooms::PrintSubHeading(surface, QStringLiteral("Beneficial Directions for the year 2024"), 0);
    surface.FontBold(true);
    surface.FontUnderline(true);
    surface.Write(QStringLiteral("no heading at 11 points"));
    surface.EndDoc();
    EXPECT_EQ(textsOf("h2"), QStringList{QStringLiteral("Elements")});
    EXPECT_EQ(textsOf("h3"), QStringList{QStringLiteral("Beneficial Directions for the year 2024")});
    EXPECT_EQ(textsOf("p"), QStringList{QStringLiteral("no heading at 11 points")});
}

TEST_F(HtmlWriterTest, header_isAHeadingOnlyWhereItChanges) {
    surface.StartDoc();
    modRooms::SetReportHeader(surface, QStringLiteral("Bedroom"), 0);
    surface.NewPage();
    surface.NewPage();
    modRooms::SetReportHeader(surface, QStringLiteral("Kitchen"), 0);
    modRooms::SetReportFooter(surface, QStringLiteral("* note"));
    surface.EndDoc();
    EXPECT_EQ(textsOf("h1"), (QStringList{QStringLiteral("Bedroom"), QStringLiteral("Kitchen")}));
    EXPECT_EQ(textsOf("p"), (QStringList{QStringLiteral("Bedroom"), QStringLiteral("* note")}));
    EXPECT_EQ(named("header").size(), 3U);
    EXPECT_EQ(named("footer").size(), 1U);
    EXPECT_EQ(named("section").size(), 3U);
    EXPECT_EQ(textsOf("title"), QStringList{QStringLiteral("Bedroom")});
}

TEST_F(HtmlWriterTest, header_setAnewWithTheSameText_isAHeadingAgain) {
    surface.StartDoc();
    modRooms::SetReportHeader(surface, QStringLiteral("Bedroom"), 0);
    surface.NewPage();
    modRooms::SetReportHeader(surface, QStringLiteral("Bedroom"), 0);
    surface.NewPage();
    surface.EndDoc();
    EXPECT_EQ(textsOf("h1"), (QStringList{QStringLiteral("Bedroom"), QStringLiteral("Bedroom")}));
    EXPECT_EQ(textsOf("p"), QStringList{QStringLiteral("Bedroom")});
}

TEST_F(HtmlWriterTest, title_thatWasSet_standsForTheFirstHeader) {
    surface.setTitle(QStringLiteral("Elm  Street"));
    surface.StartDoc();
    modRooms::SetReportHeader(surface, QStringLiteral("Bedroom"), 0);
    surface.EndDoc();
    EXPECT_EQ(textsOf("title"), QStringList{QStringLiteral("Elm Street")});
}

TEST_F(HtmlWriterTest, title_withoutAHeader_isThere) {
    write({});
    EXPECT_EQ(textsOf("title"), QStringList{QStringLiteral("Report")});
    EXPECT_EQ(elements().at(0).attribute("lang"), QStringLiteral("en"));
}

TEST_F(HtmlWriterTest, paragraphOverPages_isOneParagraph) {
    write({lines(3 * linesOfPage)});
    EXPECT_EQ(named("section").size(), 3U);
    ASSERT_EQ(named("p").size(), 1U);
    EXPECT_EQ(textsOf("p").at(0).count(u'\n'), 3 * linesOfPage - 1);
}

TEST_F(HtmlWriterTest, chart_isOneFigureWithItsLettersInOrder) {
    surface.StartDoc();
    writeLabel(QStringLiteral("S"), 3450, 1600);
    writeLabel(QStringLiteral("N"), 3450, 5250);
    surface.DrawCircle(3500, 3500, 1440, 1.309, 1.833);
    surface.DrawCircle(3500, 3500, 400);
    surface.TextAngle(900);
    surface.TextBox(QStringLiteral("Success & more"), 3500, 3500, 5000, 0);
    surface.CurrentY(5800);
    surface.Write(QStringLiteral("below"));
    surface.EndDoc();
    ASSERT_EQ(named("figure").size(), 1U);
    EXPECT_EQ(textsOf("text"),
              (QStringList{QStringLiteral("S"), QStringLiteral("N"), QStringLiteral("Success & more")}));
    const Element picture = named("svg").at(0);
    EXPECT_EQ(picture.attribute("role"), QStringLiteral("img"));
    EXPECT_EQ(picture.attribute("aria-label"), QStringLiteral("Chart: S, N, Success & more"));
    EXPECT_EQ(named("path").size(), 1U);
    EXPECT_EQ(named("circle").size(), 1U);
    EXPECT_TRUE(named("g").at(0).attribute("transform").contains(QStringLiteral("rotate(-90)")));
    EXPECT_EQ(textsOf("p"), QStringList{QStringLiteral("below")});
}

TEST_F(HtmlWriterTest, turnedText_keepsTheLookOfItsLetters) {
    surface.StartDoc();
    surface.TextBox(QStringLiteral("plain"), 3500, 3500, 5000, 0);
    surface.FontBold(true);
    surface.TextBox(QStringLiteral("bold"), 3500, 3500, 5000, 0);
    surface.FontItalic(true);
    surface.FontUnderline(true);
    surface.TextBox(QStringLiteral("all"), 3500, 3500, 5000, 0);
    surface.EndDoc();
    const std::vector<Element> texts = named("text");
    ASSERT_EQ(texts.size(), 3U);
    const auto look = [](const Element& text) {
        return QStringList{text.attribute("font-weight"), text.attribute("font-style"),
                           text.attribute("text-decoration")};
    };
    EXPECT_EQ(look(texts[0]), (QStringList{QString(), QString(), QString()}));
    EXPECT_EQ(look(texts[1]), (QStringList{QStringLiteral("bold"), QString(), QString()}));
    EXPECT_EQ(look(texts[2]),
              (QStringList{QStringLiteral("bold"), QStringLiteral("italic"), QStringLiteral("underline")}));
}

TEST_F(HtmlWriterTest, outline_isDashedInUnitsOfThePage) {
    surface.StartDoc();
    surface.PenWidth(20);
    surface.DrawRectangle(1000, 3000, 4000, 2000);
    surface.PenStyle(1);
    surface.DrawRectangle(1000, 2000, 4000, 3000);
    surface.PenStyle(5);
    surface.DrawRectangle(1000, 2000, 4000, 3000);
    surface.EndDoc();
    const std::vector<Element> shapes = named("rect");
    ASSERT_EQ(shapes.size(), 3U);
    for (const Element& shape : shapes) { // the corners in any order
        EXPECT_EQ(shape.attribute("x"), QStringLiteral("1000"));
        EXPECT_EQ(shape.attribute("y"), QStringLiteral("2000"));
        EXPECT_EQ(shape.attribute("width"), QStringLiteral("3000"));
        EXPECT_EQ(shape.attribute("height"), QStringLiteral("1000"));
        EXPECT_EQ(shape.attribute("stroke-width"), QStringLiteral("20"));
    }
    EXPECT_EQ(shapes[0].attribute("stroke-dasharray"), QString());
    EXPECT_EQ(shapes[1].attribute("stroke-dasharray"), QStringLiteral("80 40")); // 4 and 2 widths of the pen
    EXPECT_EQ(shapes[2].attribute("stroke"), QStringLiteral("none"));
}

TEST_F(HtmlWriterTest, installedFace_isNamedBeforeTheUsualOnes) {
    const QString face = anotherFace();
    surface.StartDoc();
    surface.FontName(face);
    surface.Write(QStringLiteral("in a face of its own"));
    surface.EndDoc();
    EXPECT_EQ(named("p").at(0).attribute("style"),
              QStringLiteral("font-size:11pt;color:#000000;font-family:'%1',Arial,sans-serif").arg(face));
}

TEST_F(HtmlWriterTest, wedge_isTheOneThatIsPainted) {
    constexpr double quarter = 1.57079632679489661923;
    surface.StartDoc();
    surface.DrawCircle(5000, 5000, 1000, 0, quarter);
    surface.DrawCircle(5000, 5000, 1000, quarter, 0);
    surface.EndDoc();
    // From the right to the top, counter-clockwise; then the three quarters that remain.
    EXPECT_EQ(named("path").at(0).attribute("d"),
              QStringLiteral("M5000 5000 L6000 5000 A1000 1000 0 0 0 5000 4000 Z"));
    EXPECT_EQ(named("path").at(1).attribute("d"),
              QStringLiteral("M5000 5000 L5000 4000 A1000 1000 0 1 0 6000 5000 Z"));
}

TEST_F(HtmlWriterTest, paragraphBesideAChart_standsBesideItAndTheNextBelow) {
    surface.StartDoc();
    surface.DrawCircle(3500, 3500, 1440, 0, 1);
    surface.CurrentY(2500);
    modRooms::PrintBesideChart(surface, QStringLiteral("summary"), 0);
    surface.CurrentY(5800);
    surface.Write(QStringLiteral("body"));
    surface.Write(QStringLiteral("more"));
    surface.EndDoc();
    EXPECT_EQ(named("figure").at(0).attribute("class"), QStringLiteral("beside"));
    EXPECT_EQ(named("p").at(0).attribute("class"), QString());
    EXPECT_EQ(named("p").at(1).attribute("class"), QStringLiteral("below"));
    EXPECT_EQ(named("p").at(2).attribute("class"), QString());
}

TEST_F(HtmlWriterTest, backgroundColor_isNotWritten) {
    surface.BackColor(0x123456);
    write({QStringLiteral("white paper")});
    EXPECT_FALSE(htmlOf(surface.document()).contains("563412"));
}

TEST_F(HtmlWriterTest, file_needsNothingElse) {
    surface.StartDoc();
    surface.DrawCircle(3500, 3500, 1440, 0, 1);
    surface.EndDoc();
    for (const Element& element : elements()) {
        EXPECT_FALSE(element.attributes.hasAttribute(QStringLiteral("src"))) << element.name.toStdString();
        EXPECT_FALSE(element.attributes.hasAttribute(QStringLiteral("href"))) << element.name.toStdString();
    }
    const QByteArray html = htmlOf(surface.document());
    EXPECT_FALSE(html.contains("url("));
    EXPECT_FALSE(html.contains("@import"));
    EXPECT_FALSE(html.contains("<script"));
}

TEST_F(HtmlWriterTest, hostileText_isOnlyText) {
    const QStringList texts{QStringLiteral("<script>alert('x')</script>"),
                            QStringLiteral("a & b &amp; &lt; \"quoted\" 'single' ]]> <!-- no comment -->"),
                            QStringLiteral("</p></body>"),
                            QStringLiteral("\u05E9\u05DC\u05D5\u05DD \u0645\u0631\u062D\u0628\u0627"),
                            QStringLiteral("\u98CE\u6C34 \U0001F409"),
                            QStringLiteral("soft\u00ADhyphen \u200Fmark")};
    surface.StartDoc();
    for (const QString& text : texts) {
        modRooms::SetReportHeader(surface, text, 0);
        surface.Write(text);
        surface.TextBox(text, 3000, 3000, 5000, 0);
        surface.NewPage();
    }
    surface.EndDoc();
    EXPECT_EQ(named("script").size(), 0U);
    QStringList paragraphs = textsOf("p");
    paragraphs.removeLast(); // the header that goes on over the last page
    EXPECT_EQ(paragraphs, texts);
    EXPECT_EQ(named("svg").at(0).attribute("aria-label"), QStringLiteral("Drawing: ") + texts.at(0));
    EXPECT_EQ(textsOf("title").at(0), texts.at(0));
    EXPECT_EQ(named("p").at(3).attribute("dir"), QStringLiteral("rtl"));
}

TEST_F(HtmlWriterTest, charactersThatNoFileMayHold_areReplaced) {
    QString text = QStringLiteral("a");
    for (const char16_t character : {u'\0', u'\x01', u'\x0B', u'\x1F', u'\x7F', u'\x85', u'\x9F', u'\xFFFE',
                                     u'\xFFFF', u'\xFDD0', u'\xFDEF'}) {
        text += QChar(character);
    }
    // A blank that does not break begins where the control characters end.
    write({text + QStringLiteral("b\u00A0c"), QString(QChar(0xD83D)) + u'x', u'y' + QString(QChar(0xDC09))});
    EXPECT_EQ(textsOf("p"), (QStringList{u'a' + QString(11, QChar(0xFFFD)) + QStringLiteral("b\u00A0c"),
                                         QStringLiteral("\uFFFDx"), QStringLiteral("y\uFFFD")}));
}

TEST_F(HtmlWriterTest, threeHundredPages_areThreeHundredSections) {
    surface.StartDoc();
    for (int number = 0; number < 300; ++number) {
        modRooms::SetReportHeader(surface, QString::number(number), 0);
        surface.DrawCircle(3500, 3500, 1440, 0, 1);
        surface.Write(words(400));
        if (number < 299) {
            surface.NewPage();
        }
    }
    surface.EndDoc();
    EXPECT_EQ(named("section").size(), 300U);
    EXPECT_EQ(named("h1").size(), 300U);
    EXPECT_EQ(textsOf("p"), QStringList(300, words(400)));
}

} // namespace
