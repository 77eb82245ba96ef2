#pragma once

#include "nineki/cNineKi.h"
#include "profiles/cProfile.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/RecordedReport.h"
#include "support/TestWorld.h"

#include <QList>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

inline void PrintTo(const NineKiFinding& finding, std::ostream* stream) {
    *stream << finding.sector.toStdString() << " | " << finding.text.toStdString();
}

/// A world with the real reference tables and a person by number, and a surface that notes every call.
class NineKiWorld {
public:
    NineKiWorld() { Global::CurrentProfile = std::make_unique<cProfile>(); }
    NineKiWorld(const NineKiWorld&) = delete;
    NineKiWorld& operator=(const NineKiWorld&) = delete;
    ~NineKiWorld() { Global::CurrentProfile.reset(); }

    TestWorld world{TestWorld::Records::Sample};
    RecordedReport report;
    cNineKi nineKi;

    /// Makes the current person one of that number.
    static void choosePerson(qint32 number) {
        cProfile& person = *Global::CurrentProfile;
        person.KUANUMBER = number;
        EXPECT_TRUE(person.oDirection.GetDirection(number));
        EXPECT_TRUE(person.oElement.GetElement(person.oDirection.ElementID));
    }

    void chart(const QVariant& date) { nineKi.CalcNineKiChart(report.vp, 6000, 6000, 5000, date); }

    void compass(const QVariant& date, bool draw, bool renovation) {
        nineKi.CalcMoveCompass(report.vp, 6000, 6000, 5000, date, draw, renovation);
    }

    /// Rates the year of an ordinary day.
    void rate(qint32 year, bool renovation) { compass(QDate(year, 7, 1), false, renovation); }

    /// A reference file of the rows that are left when those with `part` are taken out.
    void takeOut(const QString& file, const QByteArray& part) const {
        world.write(file, withoutRecords(world.read(file), part));
    }

    /// The sentences about one sector, in their order.
    static std::vector<std::string> about(const NineKiTable& table, const QString& sector) {
        std::vector<std::string> texts;
        for (const NineKiFinding& finding : table) {
            if (finding.sector == sector) {
                texts.push_back(finding.text.toStdString());
            }
        }
        return texts;
    }

    static std::vector<std::string> sectors(const NineKiTable& table) {
        std::vector<std::string> names;
        for (const NineKiFinding& finding : table) {
            names.push_back(finding.sector.toStdString());
        }
        return names;
    }
};
