#include "StoreFixture.h"
#include "store/RecordStore.h"
#include "store/cXMLHandler.h"

using namespace Qt::StringLiterals;

/// What a store does to its records, and to the document as a whole.
class RecordChangesTest : public StoreFixture {
protected:
    void loadThree() { ASSERT_TRUE(load(threeRecords())); }
};

TEST_F(RecordChangesTest, AddNew_newRecord_isTheCursorButNotCounted) {
    loadThree();
    ASSERT_TRUE(store.AddNew());
    EXPECT_EQ(field("ID"), QString());
    EXPECT_TRUE(store.SetAttribute(u"ID"_s, 4));
    EXPECT_EQ(store.RecordCount, 3);
    EXPECT_TRUE(store.MoveLast());
    EXPECT_EQ(field("ID"), u"3"_s); // the record before the new one
    EXPECT_TRUE(store.MoveNext());
    EXPECT_EQ(field("ID"), u"4"_s);
    EXPECT_EQ(store.GetMax(u"ID"_s), 4);
}

TEST_F(RecordChangesTest, AddNew_newRecord_isFoundAtOnceBeforeAndAfterTheSave) {
    loadThree();
    store.AddNew();
    store.SetAttribute(u"ID"_s, 4);
    const auto expectFound = [this] {
        store.MoveFirst();
        EXPECT_TRUE(store.Find(u"ID"_s, 4));
        EXPECT_TRUE(store.Query(u"//z:row[@ID = '4']"_s));
        EXPECT_EQ(store.ResultCount, 1);
    };
    expectFound();
    ASSERT_TRUE(store.SaveDocument());
    expectFound();
    ASSERT_TRUE(store.LoadDocument());
    expectFound();
    EXPECT_EQ(store.RecordCount, 4);
}

TEST_F(RecordChangesTest, AddNew_highestIdDeleted_isGivenOutAgain) {
    loadThree();
    store.Find(u"ID"_s, 3);
    ASSERT_TRUE(store.Delete());
    EXPECT_EQ(RecordStore::nextKey(store, u"ID"_s), 3);
}

TEST_F(RecordChangesTest, Delete_lastOfThree_leavesTheCursorOnTheSecond) {
    loadThree();
    store.MoveLast();
    EXPECT_TRUE(store.Delete());
    EXPECT_EQ(field("ID"), u"2"_s);
    EXPECT_EQ(store.RecordCount, 2);
    EXPECT_EQ(walked(), u"1 2"_s);
}

TEST_F(RecordChangesTest, Delete_firstOfThree_leavesTheCursorOnTheOldSecond) {
    loadThree();
    EXPECT_TRUE(store.Delete());
    EXPECT_EQ(field("ID"), u"2"_s);
    EXPECT_EQ(walked(), u"2 3"_s);
}

TEST_F(RecordChangesTest, Delete_onlyRecord_leavesTheCursorOnTheRemovedOne) {
    ASSERT_TRUE(load(fileOf({R"(ID="1" NAME="gone")"})));
    EXPECT_TRUE(store.Delete());
    EXPECT_EQ(store.RecordCount, 0);
    EXPECT_EQ(field("NAME"), u"gone"_s);
    EXPECT_TRUE(store.SetAttribute(u"NAME"_s, u"still writable"_s));
    EXPECT_EQ(field("NAME"), u"still writable"_s);
    EXPECT_FALSE(store.MoveNext());
    EXPECT_FALSE(store.MovePrevious());
    EXPECT_FALSE(store.MoveFirst());
    EXPECT_FALSE(store.Find(u"ID"_s, 1));
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    EXPECT_FALSE(store.Delete());
    EXPECT_EQ(store.RecordCount, 0);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_FALSE(world.read(fileName).contains("z:row"));
}

TEST_F(RecordChangesTest, Delete_resultRecord_leavesTheCursor) {
    loadThree();
    store.Find(u"ID"_s, 2);
    store.Query(u"//z:row[@NAME = 'A']"_s);
    ASSERT_TRUE(store.GetResult(0));
    EXPECT_TRUE(store.Delete(true));
    EXPECT_EQ(field("ID"), u"2"_s);
    EXPECT_EQ(field("ID", true), u"1"_s); // the removed record can still be read
    EXPECT_EQ(store.ResultCount, 2);
    ASSERT_TRUE(store.GetResult(1));
    EXPECT_TRUE(store.Delete(true));
    EXPECT_EQ(walked(), u"2"_s);
    EXPECT_EQ(store.RecordCount, 1);
}

TEST_F(RecordChangesTest, Delete_resultRecordUnderTheCursor_leavesTheCursorOnTheRemovedOne) {
    loadThree();
    store.Query(u"//z:row[@ID = '1']"_s);
    ASSERT_TRUE(store.GetResult(0));
    EXPECT_TRUE(store.Delete(true));
    EXPECT_EQ(field("ID"), u"1"_s);
    EXPECT_FALSE(store.MoveNext());
    EXPECT_EQ(walked(), u"2 3"_s);
    ASSERT_TRUE(store.GetResult(0)); // the list of results still refers to it
    EXPECT_EQ(field("ID", true), u"1"_s);
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    EXPECT_FALSE(store.Delete(true));
    EXPECT_EQ(store.RecordCount, 2);
}

TEST_F(RecordChangesTest, Delete_resultRightAfterAQuery_refusesTheSchema) {
    loadThree();
    store.Query(u"//z:row"_s);
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    EXPECT_FALSE(store.Delete(true));
    EXPECT_EQ(store.RecordCount, 3);
}

TEST_F(RecordChangesTest, Move_pastEitherEnd_isFalseAndStays) {
    loadThree();
    EXPECT_FALSE(store.MovePrevious());
    EXPECT_EQ(field("ID"), u"1"_s);
    EXPECT_TRUE(store.MoveLast());
    EXPECT_FALSE(store.MoveNext());
    EXPECT_EQ(field("ID"), u"3"_s);
    EXPECT_TRUE(store.MovePrevious());
    EXPECT_EQ(field("ID"), u"2"_s);
    EXPECT_TRUE(store.MoveFirst());
    EXPECT_EQ(field("ID"), u"1"_s);
    EXPECT_EQ(walked(), u"1 2 3"_s);
}

TEST_F(RecordChangesTest, GetAttribute_absentField_isTheEmptyTextAndNeverNull) {
    loadThree();
    EXPECT_EQ(store.GetAttribute(u"NOSUCHFIELD"_s), QString());
    EXPECT_EQ(store.GetAttribute(u"name"_s), QString());
    EXPECT_EQ(store.GetAttribute(QString()), QString());
    EXPECT_FALSE(store.GetAttribute(u"NOSUCHFIELD"_s).isNull());
    store.CurrentNode.clear();
    EXPECT_FALSE(store.GetAttribute(u"ID"_s).isNull());
}

TEST_F(RecordChangesTest, SetAttribute_valuesOfEveryKind_areStoredAsTheirText) {
    loadThree();
    EXPECT_TRUE(store.SetAttribute(u"N"_s, 42));
    EXPECT_TRUE(store.SetAttribute(u"D"_s, QDate(1965, 2, 4)));
    EXPECT_TRUE(store.SetAttribute(u"F"_s, true));
    EXPECT_TRUE(store.SetAttribute(u"G"_s, 12.5));
    EXPECT_TRUE(store.SetAttribute(u"E"_s, QString()));
    EXPECT_EQ(field("N"), u"42"_s);
    EXPECT_EQ(field("D"), u"1965-02-04T00:00:00"_s);
    EXPECT_EQ(field("F"), u"True"_s);
    EXPECT_EQ(field("G"), u"12.5"_s);
    EXPECT_EQ(field("E"), QString());
    store.Query(u"//z:row[@ID = '2']"_s);
    store.GetResult(0);
    EXPECT_TRUE(store.SetAttribute(u"N"_s, 7, true));
    EXPECT_EQ(field("N", true), u"7"_s);
    EXPECT_EQ(field("N"), u"42"_s);
}

TEST_F(RecordChangesTest, SetAttribute_whatNoFileCanHold_isStoredWithoutItAndFalse) {
    loadThree();
    EXPECT_FALSE(
        store.SetAttribute(u"N"_s, u"a\u0001b"_s + QChar(u'\0') + QChar(0xD800) + QChar(0xFFFF) + u'c'));
    EXPECT_EQ(field("N"), u"abc"_s);
    ASSERT_TRUE(store.SaveDocument());
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_EQ(field("N"), u"abc"_s);
}

TEST_F(RecordChangesTest, SetAttribute_nameThatNoFileCanHold_isReportedAndNothingIsStored) {
    loadThree();
    for (const QString& name :
         {QString(), u"A B"_s, u"1A"_s, u"-A"_s, u".A"_s, u"A\"B"_s, u"A<"_s, u"A"_s + QChar(u'\0') + u'B'}) {
        world.prompts.expectError(u"cXMLHandler.Set Attribute"_s, 5);
        EXPECT_FALSE(store.SetAttribute(name, 1)) << qPrintable(name);
    }
    EXPECT_TRUE(store.SetAttribute(u"GRÖSSE"_s, 1));
    EXPECT_TRUE(store.SetAttribute(u"rs:a-b.c_1"_s, 1));
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_EQ(recordLines(world.read(fileName)).first(),
              "<z:row ID=\"1\" NAME=\"A\" GRÖSSE=\"1\" rs:a-b.c_1=\"1\" />");
}

TEST_F(RecordChangesTest, DeleteAttribute_presentOrAbsent_isTrueAndTheFieldIsGone) {
    loadThree();
    EXPECT_TRUE(store.DeleteAttribute(u"NAME"_s));
    EXPECT_EQ(field("NAME"), QString());
    EXPECT_FALSE(store.CurrentNode.node.attribute("NAME"));
    EXPECT_TRUE(store.DeleteAttribute(u"NAME"_s));
    store.Query(u"//z:row[@ID = '3']"_s);
    store.GetResult(0);
    EXPECT_TRUE(store.DeleteAttribute(u"NAME"_s, true));
    EXPECT_EQ(field("NAME", true), QString());
}

TEST_F(RecordChangesTest, XML_read_isTheDocumentsText) {
    EXPECT_EQ(store.XML(), QString());
    loadThree();
    EXPECT_TRUE(store.XML().contains(u"<z:row ID=\"1\" NAME=\"A\" />"_s));
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_EQ(store.XML().toUtf8(), world.read(fileName));
}

TEST_F(RecordChangesTest, XML_write_leavesEveryOtherFieldOnTheOldTree) {
    loadThree();
    store.Find(u"ID"_s, 2);
    store.XML(QString::fromUtf8(fileOf({R"(ID="8")", R"(ID="9")"})));
    EXPECT_EQ(store.RecordCount, 3);
    EXPECT_EQ(field("ID"), u"2"_s);
    EXPECT_TRUE(store.MoveNext());
    EXPECT_EQ(field("ID"), u"3"_s);
    EXPECT_FALSE(store.Find(u"ID"_s, 8));
    EXPECT_EQ(walked(), u"1 2 3"_s);
    EXPECT_TRUE(store.Query(u"//z:row"_s)); // a query starts in the document
    EXPECT_EQ(store.ResultCount, 2);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_EQ(recordLines(world.read(fileName)),
              (QByteArrayList{"<z:row ID=\"8\" />", "<z:row ID=\"9\" />"}));
}

TEST_F(RecordChangesTest, XML_writeThatDoesNotParse_isSilentAndNothingOfItCanBeSaved) {
    store.XML(u"<a/>"_s); // there is no document to write to
    EXPECT_EQ(store.Dom, nullptr);
    loadThree();
    const QByteArray before = world.read(fileName);
    store.XML(u"<a><b></a>"_s);
    EXPECT_EQ(store.XML(), QString());
    EXPECT_EQ(walked(), u"1 2 3"_s);
    world.prompts.expectError(u"cXMLHandler.Save Document"_s, 321, u"Invalid file format"_s);
    EXPECT_FALSE(store.SaveDocument());
    EXPECT_EQ(world.read(fileName), before);
}

TEST_F(RecordChangesTest, SaveDocument_treeThatWouldNotLoadAgain_isReportedAndTheFileStays) {
    loadThree();
    ASSERT_TRUE(store.SaveDocument());
    const QByteArray before = world.read(fileName);
    const auto expectRefused = [&] {
        world.prompts.expectError(u"cXMLHandler.Save Document"_s, 321, u"Invalid file format"_s);
        EXPECT_FALSE(store.SaveDocument());
        EXPECT_EQ(world.read(fileName), before);
    };
    // Nothing of this program builds such trees; whatever did must not cost the file.
    store.CurrentNode.node.set_name("z:row <");
    expectRefused();
    store.CurrentNode.node.set_name("z:row");
    pugi::xml_node comment = store.DataNode.node.append_child(pugi::node_comment);
    comment.set_value("--></rs:data>");
    expectRefused();
    store.DataNode.node.remove_child(comment);
    pugi::xml_node second = store.Dom->append_child("second-root");
    expectRefused();
    store.Dom->remove_child(second);
    store.CurrentNode.node.append_attribute("BAD").set_value("\xFF");
    expectRefused();
    store.DeleteAttribute(u"BAD"_s);
    EXPECT_TRUE(store.SaveDocument());
    EXPECT_EQ(world.read(fileName), before);
}

TEST_F(RecordChangesTest, twoStores_onOneFile_seeEachOtherOnlyThroughTheFile) {
    loadThree();
    cXMLHandler other;
    ASSERT_TRUE(other.LoadDocument(path()));
    store.SetAttribute(u"NAME"_s, u"changed"_s);
    EXPECT_EQ(other.GetAttribute(u"NAME"_s), u"A"_s);
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_EQ(other.GetAttribute(u"NAME"_s), u"A"_s);
    ASSERT_TRUE(other.LoadDocument());
    EXPECT_EQ(other.GetAttribute(u"NAME"_s), u"changed"_s);
    other.SetAttribute(u"NAME"_s, u"last"_s);
    ASSERT_TRUE(store.SaveDocument());
    ASSERT_TRUE(other.SaveDocument());
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_EQ(field("NAME"), u"last"_s);
}
