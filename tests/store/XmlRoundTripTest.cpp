#include "StoreFixture.h"

#include <QDir>
#include <QStringEncoder>

using namespace Qt::StringLiterals;

/// What goes into a file and what comes out of it again.
class XmlRoundTripTest : public StoreFixture {
protected:
    /// Saves what was loaded and expects the file to be `content`.
    void expectSaved(const QByteArray& content) {
        ASSERT_TRUE(store.SaveDocument());
        EXPECT_EQ(world.read(fileName), content);
    }
};

TEST_F(XmlRoundTripTest, save_installedFiles_comeBackByteByByte) {
    const QDir data(QStringLiteral(TALIVANE_DATA_DIR));
    QStringList files = data.entryList({u"*.xml"_s});
    for (const QString& sample : QDir(data.filePath(u"sample"_s)).entryList({u"*.xml"_s})) {
        files << u"sample/"_s + sample;
    }
    ASSERT_GE(files.size(), 15);
    for (const QString& name : files) {
        QFile file(data.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        ASSERT_TRUE(load(content)) << qPrintable(name);
        ASSERT_TRUE(store.SaveDocument());
        EXPECT_EQ(world.read(fileName), content) << qPrintable(name);
    }
}

TEST_F(XmlRoundTripTest, save_prefixesNamespacesAndAttributeOrder_stay) {
    const QByteArray content =
        R"(<xml xmlns:s="uuid:1" xmlns:dt="uuid:2" xmlns:rs="urn:3" xmlns:z="#RowsetSchema">
	<s:Schema id="RowsetSchema">
		<s:ElementType name="row" content="eltOnly" rs:updatable="true">
			<s:AttributeType name="B" rs:number="2" />
			<s:AttributeType name="A" rs:number="1" />
		</s:ElementType>
	</s:Schema>
	<rs:data xmlns:local="urn:here">
		<z:row Z="1" A="2" M="3" local:x="4" />
		<z:row M="3" Z="1" />
	</rs:data>
</xml>
)";
    ASSERT_TRUE(load(content));
    expectSaved(content);
}

TEST_F(XmlRoundTripTest, save_newFields_standBehindTheOldOnesInTheOrderOfWriting) {
    ASSERT_TRUE(load(fileOf({R"(M="1" A="2")"})));
    store.SetAttribute(u"Z"_s, 3);
    store.SetAttribute(u"B"_s, 4);
    store.SetAttribute(u"A"_s, 5);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_EQ(recordLines(world.read(fileName)), QByteArrayList{R"(<z:row M="1" A="5" Z="3" B="4" />)"});
}

TEST_F(XmlRoundTripTest, save_rowsOnOneLine_standOneToALine) {
    ASSERT_TRUE(load(fileOf({R"(ID="1")", R"(ID="2")", R"(ID="3")"}).replace("\n", "")));
    ASSERT_TRUE(store.SaveDocument());
    const QByteArray content = world.read(fileName);
    EXPECT_EQ(recordLines(content),
              (QByteArrayList{R"(<z:row ID="1" />)", R"(<z:row ID="2" />)", R"(<z:row ID="3" />)"}));
    EXPECT_TRUE(content.endsWith("</xml>\n"));
    EXPECT_EQ(content.count('\n'), 8);
}

TEST_F(XmlRoundTripTest, SetAttribute_hostileValues_surviveSaveAndLoad) {
    const QStringList values = {u"O'Neill & \"Sons\" <b>"_s,
                                u"]]>"_s,
                                u"&amp; &#65; &bomb;"_s,
                                u"line\nbreak\r\nand\rreturn"_s,
                                u"\ttab\t"_s,
                                u"  blanks  around  "_s,
                                u" "_s,
                                u"Größe ÆØÅ français"_s,
                                u"русский ελληνικά"_s,
                                u"עברית العربية"_s,
                                u"\u202Eright to left\u202C"_s,
                                u"家 方位 日本語 한국어"_s,
                                u"देवनागरी ไทย"_s,
                                u"😀 𝄞 \U0010FFFD"_s,
                                u"e\u0301 \u00E9"_s, // composed and decomposed stay apart
                                u"\u0085\u2028\u00A0\uFEFF"_s,
                                u"<!-- --> <?pi ?> <![CDATA["_s,
                                u"{0} %1 \\n C:\\path"_s,
                                QString(100000, u'ä')};
    QByteArrayList rows(values.size(), "");
    ASSERT_TRUE(load(fileOf(rows)));
    store.MoveFirst();
    for (const QString& value : values) {
        EXPECT_TRUE(store.SetAttribute(u"TEXT"_s, value)) << qPrintable(value.left(50));
        store.MoveNext();
    }
    ASSERT_TRUE(store.SaveDocument());
    const QByteArray once = world.read(fileName);
    EXPECT_EQ(recordLines(once).size(), values.size()); // line breaks inside values are written as references
    ASSERT_TRUE(store.LoadDocument());
    for (const QString& value : values) {
        EXPECT_EQ(field("TEXT"), value);
        store.MoveNext();
    }
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_EQ(world.read(fileName), once);
}

TEST_F(XmlRoundTripTest, load_referencesInAttributes_areTheirCharacters) {
    ASSERT_TRUE(load(fileOf({R"(TEXT="&lt;&gt;&amp;&quot;&apos;&#65;&#x42;&#10;&#x9;&#x5BB6;")"})));
    EXPECT_EQ(field("TEXT"), u"<>&\"'AB\n\t家"_s);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_EQ(recordLines(world.read(fileName)).first(),
              "<z:row TEXT=\"&lt;&gt;&amp;&quot;'AB&#10;&#9;家\" />");
}

TEST_F(XmlRoundTripTest, save_commentsInstructionsAndDoctype_areKept) {
    const QByteArray content = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<!-- the family's rooms -->
<!DOCTYPE xml [ <!ENTITY name "value"> <!ELEMENT xml ANY> ]>
<?style sheet="none"?>
<?empty?>
<xml>
	<s:Schema />
	<!-- before -->
	<rs:data>
		<!-- first -->
		<z:row ID="1" />
		<!-- between -->
		<z:row ID="2" />
		<?between them?>
		<!-- last -->
	</rs:data>
</xml>
<!-- after -->
)";
    ASSERT_TRUE(load(content));
    EXPECT_EQ(store.RecordCount, 2); // comments count as nothing
    EXPECT_EQ(walked(), u"1 2"_s);
    EXPECT_FALSE(store.MoveNext());
    EXPECT_TRUE(store.MovePrevious());
    EXPECT_EQ(field("ID"), u"1"_s);
    EXPECT_FALSE(store.MovePrevious());
    expectSaved(content);
}

TEST_F(XmlRoundTripTest, save_textInsideElements_keepsItsBlanks) {
    const QByteArray content =
        "<xml>\n"
        "\t<s:Schema>\n"
        "\t\t<note> two  <b>bold<i /></b> &amp; &lt;more&gt;\n next\t<![CDATA[ <raw> & ]]></note>\n"
        "\t\t<empty />\n"
        "\t</s:Schema>\n"
        "\t<rs:data>\n"
        "\t\t<z:row ID=\"1\">text</z:row>\n"
        "\t</rs:data>\n"
        "</xml>\n";
    ASSERT_TRUE(load(content));
    expectSaved(content);
    store.CurrentNode.node.text().set("a\rb");
    ASSERT_TRUE(store.SaveDocument());
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_STREQ(store.CurrentNode.node.text().get(), "a\rb");
}

TEST_F(XmlRoundTripTest, save_documentsOfEverySize_areWholeAtTheSeamsOfTheCheck) {
    // What is read back before the write is taken apart every so often; no row may fall between.
    for (const int rows : {1, 2, 160, 161, 162, 163, 164, 165, 700}) {
        QByteArrayList records;
        for (int i = 0; i < rows; ++i) {
            records << "ID=\"" + QByteArray::number(i) + "\" N=\"" + QByteArray(80, 'n') + '"';
        }
        ASSERT_TRUE(load(fileOf(records)));
        ASSERT_TRUE(store.SaveDocument());
        EXPECT_EQ(recordLines(world.read(fileName)).size(), rows);
        ASSERT_TRUE(store.LoadDocument());
        EXPECT_EQ(store.RecordCount, rows);
    }
}

TEST_F(XmlRoundTripTest, load_wideEncodings_areReadWithAndWithoutMarkAndSavedAsUtf8) {
    const QString text = QString::fromUtf8(fileOf({R"(NAME="Größe 家 😀")"}));
    for (const QStringConverter::Encoding encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE,
                                                      QStringConverter::Utf32LE, QStringConverter::Utf32BE}) {
        for (const bool mark : {false, true}) {
            for (const QString& declaration : {QString(), u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>"_s}) {
                QStringEncoder encode(encoding, mark ? QStringConverter::Flag::WriteBom
                                                     : QStringConverter::Flag::Default);
                const QByteArray bytes = encode(declaration + text);
                ASSERT_TRUE(load(bytes)) << QStringConverter::nameForEncoding(encoding) << ' ' << mark;
                EXPECT_EQ(field("NAME"), u"Größe 家 😀"_s);
                ASSERT_TRUE(store.SaveDocument());
                const QByteArray saved = world.read(fileName);
                EXPECT_TRUE(saved.contains("NAME=\"Größe 家 😀\""));
                EXPECT_FALSE(saved.contains("UTF-16"));
                EXPECT_EQ(saved.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"),
                          !declaration.isEmpty());
                ASSERT_TRUE(store.LoadDocument());
                EXPECT_EQ(field("NAME"), u"Größe 家 😀"_s);
            }
        }
    }
}

TEST_F(XmlRoundTripTest, load_utf8Mark_isReadAndLeftOutOnSave) {
    ASSERT_TRUE(load("\xEF\xBB\xBF" + fileOf({R"(NAME="ä")"})));
    EXPECT_EQ(field("NAME"), u"ä"_s);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_TRUE(world.read(fileName).startsWith("<xml"));
}

TEST_F(XmlRoundTripTest, load_eightBitEncodings_areReadByTheirDeclaration) {
    ASSERT_TRUE(load("<?xml version='1.0' encoding='ISO-8859-1'?>" + fileOf({"NAME=\"Gr\xF6\xDF"
                                                                             "e\""})));
    EXPECT_EQ(field("NAME"), u"Größe"_s);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_TRUE(world.read(fileName).startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"));
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_EQ(field("NAME"), u"Größe"_s);
}
