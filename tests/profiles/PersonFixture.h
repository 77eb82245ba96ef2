#pragma once

#include "core/Conversion.h"
#include "core/Global.h"
#include "profiles/cProfile.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

inline const QString OBJECT_NOT_SET = u"Object variable or With block variable not set"_s;
inline const QString FILE_NAME = u"Profiles.xml"_s;

/// The person who is stored first in the sample household.
inline void expectAnn(const cProfile& profile) {
    EXPECT_EQ(profile.PROFILEID, 1);
    EXPECT_EQ(profile.PROFILENAME, u"Ann Example");
    EXPECT_EQ(profile.BIRTHDATE, QVariant(u"2/4/1985"_s));
    EXPECT_EQ(profile.ADJBIRTHYEAR, 1985);
    EXPECT_EQ(profile.GENDER, u"F");
    EXPECT_EQ(profile.KUANUMBER, 9);
}

class PersonFixture : public testing::Test {
protected:
    /// A file of one person, with the given birth date and numbers.
    void writePerson(const QByteArray& birthDate, const QByteArray& year = "1965",
                     const QByteArray& number = "8") const {
        world.write(FILE_NAME,
                    recordFile({"<z:row PROFILEID='3' PROFILENAME='Pat' BIRTHDATE='" + birthDate +
                                "' ADJBIRTHYEAR='" + year + "' GENDER='M' KUANUMBER='" + number + "'/>"}));
    }

    [[nodiscard]] QByteArrayList stored() const { return recordLines(world.read(FILE_NAME)); }

    void removeRecords(const QString& file, const QByteArray& part) const {
        world.write(file, withoutRecords(world.read(file), part));
    }

    void expectStoreFailure(const QString& label, qint32 number = 91,
                            const QString& description = OBJECT_NOT_SET) {
        world.prompts.expectError(label, number, description);
    }

    TestWorld world{TestWorld::Records::Sample};
};
