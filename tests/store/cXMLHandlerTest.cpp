#include "store/cXMLHandler.h"

#include "StoreFixture.h"
#include "store/RecordStore.h"

#include <limits>

using namespace Qt::StringLiterals;

class cXMLHandlerTest : public StoreFixture {
protected:
    void loadThree() {
        ASSERT_TRUE(load(fileOf({R"(ID="1" NAME="A")", R"(ID="2" NAME="B")", R"(ID="3" NAME="A")"})));
    }
};

TEST_F(cXMLHandlerTest, LoadDocument_threeRecords_setsEveryField) {
    world.write(fileName,
                R"(<xml xmlns:s="a" xmlns:z="b"><s:Schema><s:ElementType><s:AttributeType name="ID"/>)"
                R"(<s:AttributeType name="NAME"/></s:ElementType></s:Schema>)"
                R"(<rs:data><z:row ID="1"/><z:row ID="2"/><z:row ID="3"/></rs:data></xml>)");
    ASSERT_TRUE(store.LoadDocument(path()));
    EXPECT_EQ(store.ExternalFileName, path());
    EXPECT_EQ(store.RecordCount, 3);
    EXPECT_EQ(store.FieldCount, 2);
    EXPECT_EQ(store.SchemaAttributes.size(), 2U);
    EXPECT_EQ(store.GetSchema(0), u"ID"_s);
    EXPECT_EQ(store.GetSchema(1), u"NAME"_s);
    EXPECT_EQ(store.GetSchema(2), QString());
    EXPECT_EQ(store.GetSchema(-1), QString());
    EXPECT_STREQ(store.SchemaNode.node.name(), "s:Schema");
    EXPECT_STREQ(store.DataNode.node.name(), "rs:data");
    EXPECT_EQ(field("ID"), u"1"_s);
    EXPECT_FALSE(store.ResultNode);
    EXPECT_EQ(store.ResultCount, 0);
}

TEST_F(cXMLHandlerTest, LoadDocument_noNameAtAll_isFalse) {
    EXPECT_FALSE(store.LoadDocument());
    EXPECT_FALSE(store.LoadDocument(QString()));
    EXPECT_EQ(store.Dom, nullptr);
}

TEST_F(cXMLHandlerTest, LoadDocument_withoutArgument_loadsTheFileAgain) {
    loadThree();
    world.write(fileName, fileOf({R"(ID="7")"}));
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_EQ(store.RecordCount, 1);
    EXPECT_EQ(field("ID"), u"7"_s);
}

TEST_F(cXMLHandlerTest, LoadDocument_emptyData_hasNoRecordsAndTheFirstIdIsOne) {
    ASSERT_TRUE(load(fileOf({})));
    EXPECT_EQ(store.RecordCount, 0);
    EXPECT_EQ(store.GetMax(u"ID"_s), std::nullopt);
    EXPECT_FALSE(store.MoveFirst());
    EXPECT_FALSE(store.MoveLast());
    EXPECT_EQ(RecordStore::nextKey(store, u"ID"_s), 1);
}

TEST_F(cXMLHandlerTest, LoadDocument_emptyDataAfterRecords_leavesTheCursorAsItWas) {
    loadThree();
    ASSERT_TRUE(load(fileOf({})));
    EXPECT_EQ(store.RecordCount, 0);
    EXPECT_EQ(field("ID"), u"1"_s);
}

TEST_F(cXMLHandlerTest, LoadDocument_fileThatIsGone_isSilentAndLeavesAllButTheDocument) {
    loadThree();
    ASSERT_TRUE(store.Query(u"//z:row"_s));
    EXPECT_FALSE(store.LoadDocument(world.file(u"Nowhere.xml"_s)));
    EXPECT_EQ(store.ExternalFileName, world.file(u"Nowhere.xml"_s));
    ASSERT_NE(store.Dom, nullptr);
    EXPECT_FALSE(store.Dom->first_child());
    EXPECT_EQ(store.RecordCount, 3);
    EXPECT_EQ(store.ResultCount, 3);
    EXPECT_EQ(field("ID"), u"1"_s);
    EXPECT_TRUE(store.Find(u"ID"_s, 2)); // still in the old tree
}

TEST_F(cXMLHandlerTest, anyOperation_onAStoreThatNeverLoaded_isReportedUnderItsOwnLabel) {
    EXPECT_FALSE(store.LoadDocument(path()));
    expectNotSet("cXMLHandler.Find");
    EXPECT_FALSE(store.Find(u"ID"_s, 1));
    expectNotSet("cXMLHandler.Find");
    EXPECT_FALSE(store.Find(u"ID"_s, 1)); // the same for each later call
    expectNotSet("cXMLHandler.AdvFind");
    EXPECT_FALSE(store.AdvFind(u"//z:row[@ID = '1']"_s));
    expectNotSet("cXMLHandler.Query");
    EXPECT_FALSE(store.Query(u"//z:row"_s));
    expectNotSet("cXMLHandler.Get Max");
    EXPECT_EQ(store.GetMax(u"ID"_s), std::nullopt);
    expectNotSet("cXMLHandler.Add New");
    EXPECT_FALSE(store.AddNew());
    expectNotSet("cXMLHandler.Delete");
    EXPECT_FALSE(store.Delete());
    expectNotSet("cXMLHandler.Delete");
    EXPECT_FALSE(store.Delete(true));
    expectNotSet("cXMLHandler.Delete Attribute");
    EXPECT_FALSE(store.DeleteAttribute(u"ID"_s));
    expectNotSet("cXMLHandler.Move First");
    EXPECT_FALSE(store.MoveFirst());
    expectNotSet("cXMLHandler.Move Last");
    EXPECT_FALSE(store.MoveLast());
    expectNotSet("cXMLHandler.Move Next");
    EXPECT_FALSE(store.MoveNext());
    expectNotSet("cXMLHandler.Move Previous");
    EXPECT_FALSE(store.MovePrevious());
    EXPECT_EQ(store.GetSchema(0), QString());
    EXPECT_EQ(store.GetAttribute(u"ID"_s), QString());
    EXPECT_FALSE(store.SetAttribute(u"ID"_s, 1));
    EXPECT_FALSE(store.GetResult(0));
}

TEST_F(cXMLHandlerTest, SaveDocument_withoutADocument_isReported) {
    expectNotSet("cXMLHandler.Save Document");
    EXPECT_FALSE(store.SaveDocument(path()));
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(cXMLHandlerTest, Find_emptyNameOrValue_isFalseAndLeavesTheCursor) {
    loadThree();
    ASSERT_TRUE(store.Find(u"ID"_s, 2));
    EXPECT_FALSE(store.Find(QString(), 1));
    EXPECT_FALSE(store.Find(u"NAME"_s, QString()));
    EXPECT_FALSE(store.Find(u"NAME"_s, QVariant()));
    EXPECT_EQ(field("ID"), u"2"_s);
}

TEST_F(cXMLHandlerTest, Find_valueThatNoRecordHas_leavesTheCursorOnTheRecordBefore) {
    loadThree();
    ASSERT_TRUE(store.Find(u"ID"_s, 3));
    EXPECT_FALSE(store.Find(u"ID"_s, 9));
    EXPECT_FALSE(store.Find(u"NOSUCHFIELD"_s, 1));
    EXPECT_EQ(field("ID"), u"3"_s);
}

TEST_F(cXMLHandlerTest, Find_severalMatches_takesTheFirstInTheFile) {
    loadThree();
    store.MoveLast();
    EXPECT_TRUE(store.Find(u"NAME"_s, u"A"_s));
    EXPECT_EQ(field("ID"), u"1"_s);
}

TEST_F(cXMLHandlerTest, Find_values_areComparedAsText) {
    ASSERT_TRUE(
        load(fileOf({R"(ID="05" FLAG="True")", R"(ID=" 5")", R"(ID="5.0")", R"(ID="5" FLAG="true")"})));
    EXPECT_TRUE(store.Find(u"ID"_s, 5));
    EXPECT_EQ(field("ID"), u"5"_s);
    EXPECT_TRUE(store.Find(u"ID"_s, u"05"_s));
    EXPECT_EQ(field("ID"), u"05"_s);
    EXPECT_TRUE(store.AdvFind(u"//z:row[@ID = '5']"_s));
    EXPECT_EQ(field("ID"), u"5"_s);
    EXPECT_TRUE(store.Find(u"FLAG"_s, true));
    EXPECT_EQ(field("ID"), u"05"_s);
    EXPECT_FALSE(store.Find(u"id"_s, 5)); // names are case-sensitive
}

TEST_F(cXMLHandlerTest, Find_apostropheInTheValue_isReported) {
    loadThree();
    world.prompts.expectError(u"cXMLHandler.Find"_s, 5);
    EXPECT_FALSE(store.Find(u"NAME"_s, u"O'Neill"_s));
    EXPECT_EQ(field("ID"), u"1"_s);
}

TEST_F(cXMLHandlerTest, AdvFind_apostrophes_standForQuotes) {
    loadThree();
    EXPECT_TRUE(store.AdvFind(u"//z:row[@ID = '3' and @NAME = 'A']"_s));
    EXPECT_EQ(field("ID"), u"3"_s);
    EXPECT_TRUE(store.AdvFind(u"//z:row[(@ID = '2') and (@NAME = 'B')]"_s));
    EXPECT_EQ(field("ID"), u"2"_s);
    EXPECT_FALSE(store.AdvFind(u"//z:row[@ID = '3' and @NAME = 'B']"_s));
    EXPECT_EQ(field("ID"), u"2"_s);
    world.prompts.expectError(u"cXMLHandler.AdvFind"_s, 5);
    EXPECT_FALSE(store.AdvFind(u"//z:row[@NAME = 'say \"hi\"']"_s));
    world.prompts.expectError(u"cXMLHandler.AdvFind"_s, 5);
    EXPECT_FALSE(store.AdvFind(QString()));
}

TEST_F(cXMLHandlerTest, Query_noMatch_isTrueWithNothingToGet) {
    loadThree();
    EXPECT_TRUE(store.Query(u"//z:row[@ID = '9']"_s));
    EXPECT_EQ(store.ResultCount, 0);
    EXPECT_FALSE(store.GetResult(0));
    EXPECT_FALSE(store.ResultNode);
}

TEST_F(cXMLHandlerTest, Query_matches_areReadThroughGetResultWithoutTheCursor) {
    loadThree();
    store.Find(u"ID"_s, 2);
    ASSERT_TRUE(store.Query(u"//z:row[@NAME = 'A']"_s));
    EXPECT_EQ(store.ResultCount, 2);
    EXPECT_TRUE(store.ResultNode == store.SchemaNode); // where the query started
    EXPECT_EQ(field("id", true), u"RowsetSchema"_s);
    ASSERT_TRUE(store.GetResult(1));
    EXPECT_EQ(field("ID", true), u"3"_s);
    ASSERT_TRUE(store.GetResult(0));
    EXPECT_EQ(field("ID", true), u"1"_s);
    EXPECT_EQ(field("ID"), u"2"_s);
    EXPECT_FALSE(store.GetResult(2));
    EXPECT_FALSE(store.ResultNode);
    EXPECT_EQ(field("ID", true), QString());
    EXPECT_FALSE(store.GetResult(-1));
}

TEST_F(cXMLHandlerTest, Query_invalidExpression_isReportedAndClearsTheOldResult) {
    loadThree();
    ASSERT_TRUE(store.Query(u"//z:row"_s));
    world.prompts.expectError(u"cXMLHandler.Query"_s, 5);
    EXPECT_FALSE(store.Query(u"//z:row[@ID = "_s));
    EXPECT_TRUE(store.ResultSet.empty());
    EXPECT_FALSE(store.GetResult(0));
}

TEST_F(cXMLHandlerTest, GetMax_anyOrder_isTheLargestNumberAndLeavesTheCursor) {
    ASSERT_TRUE(load(fileOf({R"(ID="2")", R"(ID="10")", R"(ID="9")"})));
    store.MoveNext();
    EXPECT_EQ(store.GetMax(u"ID"_s), 10);
    EXPECT_EQ(field("ID"), u"10"_s);
    EXPECT_EQ(RecordStore::nextKey(store, u"ID"_s), 11);
}

TEST_F(cXMLHandlerTest, GetMax_negativeNumbers_areCompared) {
    ASSERT_TRUE(load(fileOf({R"(ID="-5")", R"(ID="-2")", R"(ID="-9")"})));
    EXPECT_EQ(store.GetMax(u"ID"_s), -2);
}

TEST_F(cXMLHandlerTest, GetMax_noNumberInTheFirstRecord_isReported) {
    ASSERT_TRUE(load(fileOf({R"(ID="abc" EMPTY="")", R"(ID="2" EMPTY="3" LATE="4")"})));
    world.prompts.expectError(u"cXMLHandler.Get Max"_s, 13, u"Type mismatch"_s);
    EXPECT_EQ(store.GetMax(u"ID"_s), std::nullopt);
    world.prompts.expectError(u"cXMLHandler.Get Max"_s, 13, u"Type mismatch"_s);
    EXPECT_EQ(store.GetMax(u"EMPTY"_s), std::nullopt);
    world.prompts.expectError(u"cXMLHandler.Get Max"_s, 94, u"Invalid use of Null"_s);
    EXPECT_EQ(store.GetMax(u"LATE"_s), std::nullopt);
}

TEST_F(cXMLHandlerTest, GetMax_noNumberInALaterRecord_isSkipped) {
    ASSERT_TRUE(load(fileOf({R"(ID="1")", R"(ID="abc")", R"(ID="")", R"(NAME="none")", R"(ID="4")"})));
    EXPECT_EQ(store.GetMax(u"ID"_s), 4);
}

TEST_F(cXMLHandlerTest, GetMax_numberBeyond32Bits_isReportedAndTheResultIsEmpty) {
    ASSERT_TRUE(load(fileOf({R"(ID="1")", R"(ID="99999999999")"})));
    world.prompts.expectError(u"cXMLHandler.Get Max"_s, 6, u"Overflow"_s);
    EXPECT_EQ(store.GetMax(u"ID"_s), std::nullopt);
}

TEST_F(cXMLHandlerTest, nextKey_noneLeft_overflows) {
    ASSERT_TRUE(load(fileOf({R"(ID="2147483647")"})));
    EXPECT_EQ(store.GetMax(u"ID"_s), std::numeric_limits<qint32>::max());
    EXPECT_THROW((void)RecordStore::nextKey(store, u"ID"_s), Failure);
}

TEST_F(cXMLHandlerTest, AddNew_newRecord_isTheCursorButNotCounted) {
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

TEST_F(cXMLHandlerTest, AddNew_newRecord_isFoundAtOnceBeforeAndAfterTheSave) {
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

TEST_F(cXMLHandlerTest, AddNew_highestIdDeleted_isGivenOutAgain) {
    loadThree();
    store.Find(u"ID"_s, 3);
    ASSERT_TRUE(store.Delete());
    EXPECT_EQ(RecordStore::nextKey(store, u"ID"_s), 3);
}

TEST_F(cXMLHandlerTest, Delete_lastOfThree_leavesTheCursorOnTheSecond) {
    loadThree();
    store.MoveLast();
    EXPECT_TRUE(store.Delete());
    EXPECT_EQ(field("ID"), u"2"_s);
    EXPECT_EQ(store.RecordCount, 2);
    EXPECT_EQ(walked(), u"1 2"_s);
}

TEST_F(cXMLHandlerTest, Delete_firstOfThree_leavesTheCursorOnTheOldSecond) {
    loadThree();
    EXPECT_TRUE(store.Delete());
    EXPECT_EQ(field("ID"), u"2"_s);
    EXPECT_EQ(walked(), u"2 3"_s);
}

TEST_F(cXMLHandlerTest, Delete_onlyRecord_leavesTheCursorOnTheRemovedOne) {
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

TEST_F(cXMLHandlerTest, Delete_resultRecord_leavesTheCursor) {
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

TEST_F(cXMLHandlerTest, Delete_resultRecordUnderTheCursor_leavesTheCursorOnTheRemovedOne) {
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

TEST_F(cXMLHandlerTest, Delete_resultRightAfterAQuery_refusesTheSchema) {
    loadThree();
    store.Query(u"//z:row"_s);
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    EXPECT_FALSE(store.Delete(true));
    EXPECT_EQ(store.RecordCount, 3);
}

TEST_F(cXMLHandlerTest, Move_pastEitherEnd_isFalseAndStays) {
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

TEST_F(cXMLHandlerTest, GetAttribute_absentField_isTheEmptyTextAndNeverNull) {
    loadThree();
    EXPECT_EQ(store.GetAttribute(u"NOSUCHFIELD"_s), QString());
    EXPECT_EQ(store.GetAttribute(u"name"_s), QString());
    EXPECT_EQ(store.GetAttribute(QString()), QString());
    EXPECT_FALSE(store.GetAttribute(u"NOSUCHFIELD"_s).isNull());
    store.CurrentNode.clear();
    EXPECT_FALSE(store.GetAttribute(u"ID"_s).isNull());
}

TEST_F(cXMLHandlerTest, SetAttribute_valuesOfEveryKind_areStoredAsTheirText) {
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

TEST_F(cXMLHandlerTest, SetAttribute_whatNoFileCanHold_isStoredWithoutItAndFalse) {
    loadThree();
    EXPECT_FALSE(
        store.SetAttribute(u"N"_s, u"a\u0001b"_s + QChar(u'\0') + QChar(0xD800) + QChar(0xFFFF) + u'c'));
    EXPECT_EQ(field("N"), u"abc"_s);
    ASSERT_TRUE(store.SaveDocument());
    ASSERT_TRUE(store.LoadDocument());
    EXPECT_EQ(field("N"), u"abc"_s);
}

TEST_F(cXMLHandlerTest, SetAttribute_nameThatNoFileCanHold_isReportedAndNothingIsStored) {
    loadThree();
    for (const QString& name :
         {QString(), u"A B"_s, u"1A"_s, u"-A"_s, u"A\"B"_s, u"A<"_s, u"A"_s + QChar(u'\0') + u'B'}) {
        world.prompts.expectError(u"cXMLHandler.Set Attribute"_s, 5);
        EXPECT_FALSE(store.SetAttribute(name, 1)) << qPrintable(name);
    }
    EXPECT_TRUE(store.SetAttribute(u"GRÖSSE"_s, 1));
    EXPECT_TRUE(store.SetAttribute(u"rs:a-b.c_1"_s, 1));
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_EQ(recordLines(world.read(fileName)).first(),
              "<z:row ID=\"1\" NAME=\"A\" GRÖSSE=\"1\" rs:a-b.c_1=\"1\" />");
}

TEST_F(cXMLHandlerTest, DeleteAttribute_presentOrAbsent_isTrueAndTheFieldIsGone) {
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

TEST_F(cXMLHandlerTest, XML_read_isTheDocumentsText) {
    EXPECT_EQ(store.XML(), QString());
    loadThree();
    EXPECT_TRUE(store.XML().contains(u"<z:row ID=\"1\" NAME=\"A\" />"_s));
    ASSERT_TRUE(store.SaveDocument());
    EXPECT_EQ(store.XML().toUtf8(), world.read(fileName));
}

TEST_F(cXMLHandlerTest, XML_write_leavesEveryOtherFieldOnTheOldTree) {
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

TEST_F(cXMLHandlerTest, XML_writeThatDoesNotParse_isSilentAndNothingOfItCanBeSaved) {
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

TEST_F(cXMLHandlerTest, SaveDocument_treeThatWouldNotLoadAgain_isReportedAndTheFileStays) {
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

TEST_F(cXMLHandlerTest, twoStores_onOneFile_seeEachOtherOnlyThroughTheFile) {
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
