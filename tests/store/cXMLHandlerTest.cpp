#include "store/cXMLHandler.h"

#include "StoreFixture.h"
#include "store/RecordStore.h"

#include <limits>

using namespace Qt::StringLiterals;

class cXMLHandlerTest : public StoreFixture {
protected:
    void loadThree() { ASSERT_TRUE(load(threeRecords())); }
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

TEST_F(cXMLHandlerTest, Query_beforeALoad_isReportedAndFindsNothing) {
    world.prompts.expectError(u"cXMLHandler.Query"_s, 91,
                              u"Object variable or With block variable not set"_s);
    EXPECT_FALSE(store.Query(u"//z:row"_s));
    EXPECT_EQ(store.ResultCount, 0);
    EXPECT_FALSE(store.GetResult(0));
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
