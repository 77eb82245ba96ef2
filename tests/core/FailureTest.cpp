#include "core/Failure.h"

#include "support/QtPrinting.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

class FailureTest : public testing::Test {
protected:
    TestWorld world_;
};

TEST_F(FailureTest, failure_everyClassicNumber_hasItsClassicDescription) {
    const std::vector<std::pair<ErrorNumber, QString>> classic = {
        {ErrorNumber::InvalidProcedureCall, u"5 Invalid procedure call or argument"_s},
        {ErrorNumber::Overflow, u"6 Overflow"_s},
        {ErrorNumber::OutOfMemory, u"7 Out of memory"_s},
        {ErrorNumber::SubscriptOutOfRange, u"9 Subscript out of range"_s},
        {ErrorNumber::DivisionByZero, u"11 Division by zero"_s},
        {ErrorNumber::TypeMismatch, u"13 Type mismatch"_s},
        {ErrorNumber::InternalError, u"51 Internal error"_s},
        {ErrorNumber::BadFileName, u"52 Bad file name or number"_s},
        {ErrorNumber::FileNotFound, u"53 File not found"_s},
        {ErrorNumber::DeviceError, u"57 Device I/O error"_s},
        {ErrorNumber::DiskFull, u"61 Disk full"_s},
        {ErrorNumber::TooManyFiles, u"67 Too many files"_s},
        {ErrorNumber::PermissionDenied, u"70 Permission denied"_s},
        {ErrorNumber::PathFileAccess, u"75 Path/File access error"_s},
        {ErrorNumber::PathNotFound, u"76 Path not found"_s},
        {ErrorNumber::ObjectNotSet, u"91 Object variable or With block variable not set"_s},
        {ErrorNumber::InvalidUseOfNull, u"94 Invalid use of Null"_s},
        {ErrorNumber::InvalidFileFormat, u"321 Invalid file format"_s},
        {ErrorNumber::InvalidPropertyValue, u"380 Invalid property value"_s},
        {ErrorNumber::InvalidPropertyArrayIndex, u"381 Invalid property array index"_s},
    };
    for (const auto& [number, text] : classic) {
        const Failure found = failure(number);
        EXPECT_EQ(QString::number(found.number) + u' ' + found.description, text);
    }
}

TEST_F(FailureTest, failure_numberThatIsNoClassicOne_keepsItWithTheGeneralDescription) {
    const Failure found = failure(static_cast<ErrorNumber>(12345));
    EXPECT_EQ(found.number, 12345);
    EXPECT_EQ(found.description, u"Application-defined or object-defined error"_s);
}

TEST_F(FailureTest, routine_bodyThatSucceeds_givesItsResultWithoutAReport) {
    EXPECT_EQ(routine(u"Test.Sum", 1, [](int& result) { result += 2; }), 3);
}

TEST_F(FailureTest, routine_bodyThatReturnsEarly_givesTheResultAsItStands) {
    const auto half = [](bool stop) {
        return routine(u"Test.Half", QString(), [&](QString& result) {
            result = u"first"_s;
            if (stop) {
                return;
            }
            result = u"second"_s;
        });
    };
    EXPECT_EQ(half(true), u"first"_s);
    EXPECT_EQ(half(false), u"second"_s);
}

TEST_F(FailureTest, routine_bodyThatFails_reportsOnceAndGivesTheResultAsItStands) {
    world_.prompts.expectError(u"Test.Fail"_s, 11, u"Division by zero"_s);
    const int result = routine(u"Test.Fail", 1, [](int& value) {
        value = 2;
        throw failure(ErrorNumber::DivisionByZero);
    });
    EXPECT_EQ(result, 2);
    EXPECT_TRUE(world_.prompts.isSatisfied());
}

TEST_F(FailureTest, routine_withoutResult_reportsAndLeavesTheBody) {
    world_.prompts.expectError(u"Test.Nothing"_s, 91, u"Object variable or With block variable not set"_s);
    bool reached = false;
    routine(u"Test.Nothing", [&] {
        if (!reached) {
            throw failure(ErrorNumber::ObjectNotSet);
        }
        reached = true;
    });
    EXPECT_FALSE(reached);
}

TEST_F(FailureTest, routine_failureInANestedRoutine_isReportedThereAndTheOuterOneGoesOn) {
    world_.prompts.expectError(u"Test.Inner"_s, 13, u"Type mismatch"_s);
    const int result = routine(u"Test.Outer", 0, [](int& outer) {
        outer = routine(u"Test.Inner", 5, [](int&) { throw failure(ErrorNumber::TypeMismatch); }) + 1;
    });
    EXPECT_EQ(result, 6);
}

TEST_F(FailureTest, routine_failuresOfBothNestedRoutines_areReportedInnerFirst) {
    world_.prompts.expectError(u"Test.Inner"_s, 13, u"Type mismatch"_s);
    world_.prompts.expectError(u"Test.Outer"_s, 6, u"Overflow"_s);
    routine(u"Test.Outer", [] {
        routine(u"Test.Inner", [] { throw failure(ErrorNumber::TypeMismatch); });
        throw failure(ErrorNumber::Overflow);
    });
    EXPECT_TRUE(world_.prompts.isSatisfied());
}

TEST_F(FailureTest, routine_standardException_isAnInternalErrorWithItsWords) {
    world_.prompts.expectError(u"Test.Standard"_s, 51, u"größer als alles"_s);
    EXPECT_FALSE(
        routine(u"Test.Standard", false, [](bool&) { throw std::runtime_error("größer als alles"); }));
}

TEST_F(FailureTest, routine_exhaustedMemory_isOutOfMemory) {
    world_.prompts.expectError(u"Test.Memory"_s, 7, u"Out of memory"_s);
    EXPECT_FALSE(routine(u"Test.Memory", false, [](bool&) { throw std::bad_alloc(); }));
}

TEST_F(FailureTest, routine_anythingElseThrown_isAnInternalError) {
    world_.prompts.expectError(u"Test.Odd"_s, 51, u"Internal error"_s);
    EXPECT_FALSE(routine(u"Test.Odd", false, [](bool&) { throw 42; }));
}

TEST_F(FailureTest, passOver_statementThatFails_isSilent) {
    int done = 0;
    passOver([&] {
        ++done;
        throw failure(ErrorNumber::TypeMismatch);
    });
    passOver([&] {
        ++done;
        throw std::runtime_error("nobody hears this");
    });
    passOver([&] { ++done; });
    EXPECT_EQ(done, 3);
}
