#include "StoreFixture.h"

#include <QElapsedTimer>
#include <QStringEncoder>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

/// Files that no honest program wrote.
class HostileFilesTest : public StoreFixture {
protected:
    /// The file must be refused without a report, and the store must be as after any failed load.
    void expectRefused(const QByteArray& content) {
        EXPECT_FALSE(load(content)) << content.left(200).toStdString();
        ASSERT_NE(store.Dom, nullptr);
        EXPECT_FALSE(store.Dom->first_child());
    }

    /// Elements around elements, so deep.
    static QByteArray nested(int depth) {
        return QByteArray("<d>").repeated(depth) + QByteArray("</d>").repeated(depth);
    }
};

TEST_F(HostileFilesTest, load_malformedFiles_areRefusedInSilence) {
    for (const QByteArray& content : std::initializer_list<QByteArray>{"",
                                                                       " ",
                                                                       "\n",
                                                                       "text",
                                                                       "<",
                                                                       "<xml",
                                                                       "<xml>",
                                                                       "</xml>",
                                                                       "<xml></lmx>",
                                                                       "<xml><a></xml></a>",
                                                                       "<xml a></xml>",
                                                                       "<xml a=></xml>",
                                                                       "<xml a=1></xml>",
                                                                       "<xml a=\"1></xml>",
                                                                       "<xml a='1\"></xml>",
                                                                       "<xml a=\"1\"b=\"2\"></xml>",
                                                                       "<1></1>",
                                                                       "<xml><!-- </xml>",
                                                                       "<xml><![CDATA[ </xml>",
                                                                       "<xml><?pi </xml>",
                                                                       "<!DOCTYPE xml [",
                                                                       "<?xml version=\"1.0\"?>",
                                                                       "<!-- only this -->",
                                                                       "<xml/>text",
                                                                       "text<xml/>",
                                                                       "<xml/><xml/>",
                                                                       "<xml/><![CDATA[text]]>",
                                                                       "{\"json\": true}",
                                                                       "PK\x03\x04",
                                                                       "\x7F"
                                                                       "ELF"}) {
        expectRefused(content);
    }
}

TEST_F(HostileFilesTest, load_fileTruncatedAtEveryByte_isRefusedOrWhole) {
    const QByteArray whole =
        "<?xml version=\"1.0\"?>\n<!-- c -->\n" + fileOf({"ID=\"1\" N=\"ä &amp; '\"", "ID=\"2\""}) + "\n";
    const qsizetype end = whole.lastIndexOf('>') + 1;
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        EXPECT_EQ(load(whole.left(size)), size >= end) << size;
    }
}

TEST_F(HostileFilesTest, load_wideFileTruncatedAtEveryByte_isRefusedOrWhole) {
    const QString whole = QString::fromUtf8(fileOf({"N=\"家😀\""}));
    QStringEncoder encode(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    const QByteArray bytes = encode(whole);
    for (qsizetype size = 0; size < bytes.size() - 1; ++size) {
        EXPECT_FALSE(load(bytes.left(size))) << size;
    }
    EXPECT_TRUE(load(bytes));
}

TEST_F(HostileFilesTest, load_badlyEncodedFiles_areRefused) {
    for (const QByteArray& bad : std::initializer_list<QByteArray>{
             "\xFF", "\xC0\xAF", "\xE0\x80\xAF", "\xF0\x80\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
             "\xF5\x80\x80\x80", "\xF8\x88\x80\x80\x80", "\xC3", "\xE5\xAE", "\x80", QByteArray(1, '\0'),
             "\x01", "\x1B", "\xEF\xBF\xBF"}) {
        expectRefused(fileOf({"N=\"" + bad + "\""}));
        expectRefused(fileOf({"N=\"12345678" + bad + "12345678\""}));
        expectRefused(fileOf({"N=\"1\""}) + bad);
    }
    // Halves of surrogate pairs in a wide file.
    QString half = QString::fromUtf8(fileOf({"N=\"?\""}));
    half[half.indexOf(u'?')] = QChar(0xD800);
    const QByteArray bytes(reinterpret_cast<const char*>(half.utf16()), half.size() * 2);
    expectRefused("\xFF\xFE" + bytes);
    expectRefused(bytes);
}

TEST_F(HostileFilesTest, load_declarationThatLies_isRefused) {
    expectRefused("<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + fileOf({}));
    expectRefused("<?xml version=\"1.0\" encoding=\"UTF-32LE\"?>" + fileOf({}));
    expectRefused("<?xml version=\"1.0\" encoding=\"no-such-encoding\"?>" + fileOf({}));
    expectRefused("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + fileOf({"N=\"\xE4\""}));
    expectRefused("<?xml version=\"1.0\" encoding=\"US-ASCII\"?>" + fileOf({"N=\"\xE4\""}));
    EXPECT_TRUE(load("<?xml version=\"1.0\" encoding=\"utf-8\"?>" + fileOf({"N=\"\xC3\xA4\""})));
}

TEST_F(HostileFilesTest, load_missingSchemaOrData_isReportedUnderLoadDocument) {
    for (const QByteArray& content : {QByteArray("<xml/>"), QByteArray("<xml><!-- nothing --></xml>"),
                                      QByteArray("<xml><s:Schema/></xml>"),
                                      QByteArray("<xml><rs:data><z:row ID=\"1\"/></rs:data></xml>")}) {
        expectNotSet("cXMLHandler.Load Document");
        EXPECT_FALSE(load(content)) << content.toStdString();
        expectNotSet("cXMLHandler.Find");
        EXPECT_FALSE(store.Find(u"ID"_s, 1));
    }
}

TEST_F(HostileFilesTest, load_missingAttributes_readAsTheEmptyText) {
    ASSERT_TRUE(load("<xml><s:Schema><s:AttributeType/></s:Schema><rs:data><z:row/></rs:data></xml>"));
    EXPECT_EQ(store.FieldCount, 1);
    EXPECT_EQ(store.GetSchema(0), QString());
    EXPECT_EQ(store.RecordCount, 1);
    EXPECT_EQ(field("ID"), QString());
    EXPECT_FALSE(store.Find(u"ID"_s, 1));
    world.prompts.expectError(u"cXMLHandler.Get Max"_s, 94, u"Invalid use of Null"_s);
    EXPECT_EQ(store.GetMax(u"ID"_s), std::nullopt);
}

TEST_F(HostileFilesTest, load_entities_areNeverExpanded) {
    QByteArray bomb = "<?xml version=\"1.0\"?>\n<!DOCTYPE xml [ <!ENTITY a0 \"aaaaaaaaaa\">";
    for (int i = 1; i < 30; ++i) {
        const QByteArray below = "&a" + QByteArray::number(i - 1) + ";";
        bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + below.repeated(10) + "\">";
    }
    bomb += "<!ENTITY file SYSTEM \"file:///etc/passwd\"> ]>\n";
    bomb += fileOf({"N=\"&a29;\" F=\"&file;\" U=\"&nbsp;\""});
    ASSERT_TRUE(load(bomb));
    EXPECT_EQ(field("N"), u"&a29;"_s);
    EXPECT_EQ(field("F"), u"&file;"_s);
    EXPECT_EQ(field("U"), u"&nbsp;"_s);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_LT(world.read(fileName).size(), bomb.size() + 100);
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_EQ(field("N"), u"&a29;"_s);
}

TEST_F(HostileFilesTest, load_hundredThousandRows_areAllThere) {
    constexpr int rows = 100000;
    QByteArray content = "<xml><s:Schema/><rs:data>";
    for (int i = 1; i <= rows; ++i) {
        content += "<z:row ID=\"" + QByteArray::number(i) + "\" N=\"Room &amp; " + QByteArray::number(i % 7) +
                   "\"/>";
    }
    content += "</rs:data></xml>";
    ASSERT_TRUE(load(content));
    EXPECT_EQ(store.RecordCount, rows);
    EXPECT_EQ(store.GetMax(u"ID"_s), rows);
    EXPECT_TRUE(store.MoveLast());
    EXPECT_EQ(field("ID"), QString::number(rows));
    EXPECT_TRUE(store.Find(u"ID"_s, rows / 2));
    EXPECT_TRUE(store.Query(u"//z:row[@N = 'Room & 3']"_s));
    EXPECT_EQ(store.ResultCount, 14286);
    EXPECT_TRUE(store.GetResult(14285));
    EXPECT_TRUE(store.Delete(true));
    ASSERT_TRUE(store.SaveDocument());
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_EQ(store.RecordCount, rows - 1);
}

TEST_F(HostileFilesTest, load_deepNestingInARecord_canBeReadSavedAndDeleted) {
    constexpr int depth = 100000;
    ASSERT_TRUE(
        load("<xml><s:Schema/><rs:data><z:row ID=\"1\">" + nested(depth) + "</z:row></rs:data></xml>"));
    EXPECT_EQ(field("ID"), u"1"_s);
    EXPECT_TRUE(store.Find(u"ID"_s, 1));
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_LT(world.read(fileName).size(), depth * 50);
    EXPECT_GT(store.XML().size(), depth * 7);
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_TRUE(store.Delete());
    EXPECT_EQ(store.RecordCount, 0);
    EXPECT_EQ(field("ID"), u"1"_s);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_FALSE(world.read(fileName).contains("<d>"));
}

TEST_F(HostileFilesTest, load_deepNestingOfTheWholeFile_isReportedAsAFileWithoutData) {
    expectNotSet("cXMLHandler.Load Document");
    EXPECT_FALSE(load(nested(100000)));
    EXPECT_FALSE(load(nested(100000).chopped(1)));
}

TEST_F(HostileFilesTest, load_recordWithHundredThousandFields_isReadInTime) {
    QByteArray record;
    for (int i = 0; i < 100000; ++i) {
        record += "F" + QByteArray::number(i) + "=\"" + QByteArray::number(i) + "\" ";
    }
    QElapsedTimer timer;
    timer.start();
    ASSERT_TRUE(load(fileOf({record})));
    EXPECT_EQ(field("F99999"), u"99999"_s);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_LT(timer.elapsed(), 20000); // comparing each with each would take minutes
}

TEST_F(HostileFilesTest, load_attributeThatStandsTwice_isReadAsTheFirst) {
    ASSERT_TRUE(load(fileOf({R"(ID="1" N="2" ID="3")"})));
    EXPECT_EQ(field("ID"), u"1"_s);
    EXPECT_TRUE(store.SetAttribute(u"ID"_s, 4));
    ASSERT_TRUE(store.SaveDocument());
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_EQ(field("ID"), u"4"_s);
}

TEST_F(HostileFilesTest, load_longNamesAndValues_areReadWhole) {
    const QByteArray name = QByteArray("N").repeated(100000);
    const QByteArray value = QByteArray("v").repeated(5000000);
    ASSERT_TRUE(load(fileOf({name + "=\"" + value + "\""})));
    EXPECT_EQ(field(name.constData()).size(), 5000000);
    EXPECT_TRUE(store.Find(QString::fromLatin1(name), QString::fromLatin1(value)));
}

TEST_F(HostileFilesTest, load_whatIsNoFile_isFalseInSilence) {
    EXPECT_FALSE(store.LoadDocument(world.folder()));
    EXPECT_FALSE(store.LoadDocument(world.file(u"no/such/folder.xml"_s)));
    EXPECT_FALSE(store.LoadDocument(u"Records\0.xml"_s));
    EXPECT_FALSE(store.LoadDocument(QString(5000, u'x')));
#ifdef Q_OS_UNIX
    EXPECT_FALSE(store.LoadDocument(u"/dev/zero"_s));
    const QString pipe = world.file(u"pipe.xml"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(store.LoadDocument(pipe)); // nobody writes into it, nobody may wait for that
#endif
}
