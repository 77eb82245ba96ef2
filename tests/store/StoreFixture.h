#pragma once

#include "store/cXMLHandler.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

/// A record file in a folder of its own, and a store on it.
class StoreFixture : public testing::Test {
protected:
    inline static const QString fileName = QStringLiteral("Records.xml");

    [[nodiscard]] QString path() const { return world.file(fileName); }

    /// Writes the file and loads it.
    bool load(const QByteArray& content) {
        world.write(fileName, content);
        return store.LoadDocument(path());
    }

    /// A file of these records, each the attributes of one.
    static QByteArray fileOf(const QByteArrayList& records) {
        QByteArrayList rows;
        for (const QByteArray& record : records) {
            rows << "<z:row " + record + "/>";
        }
        return recordFile(rows);
    }

    static QByteArray threeRecords() {
        return fileOf({R"(ID="1" NAME="A")", R"(ID="2" NAME="B")", R"(ID="3" NAME="A")"});
    }

    [[nodiscard]] QString field(const char* name, bool fromResult = false) {
        return store.GetAttribute(QString::fromLatin1(name), fromResult);
    }

    /// The field `ID` of all records, by walking the cursor.
    [[nodiscard]] QString walked() {
        QStringList ids;
        for (bool more = store.MoveFirst(); more; more = store.MoveNext()) {
            ids << field("ID");
        }
        return ids.join(u' ');
    }

    void expectNotSet(const char* label) {
        world.prompts.expectError(QString::fromLatin1(label), 91,
                                  QStringLiteral("Object variable or With block variable not set"));
    }

    TestWorld world;
    cXMLHandler store;
};
