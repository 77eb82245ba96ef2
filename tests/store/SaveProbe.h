#pragma once

#include "StoreFixture.h"

#include <QProcess>

/// Saves in a process of its own (save_probe.cpp) and what the file may hold afterwards.
class SaveProbe : public StoreFixture {
protected:
    inline static const QString program = QStringLiteral(TALIVANE_SAVE_PROBE);

    SaveProbe() {
        // What a traced or restricted process cannot do, and the save has no part in.
        qputenv("ASAN_OPTIONS", "detect_leaks=0");
        EXPECT_TRUE(load(fileOf({"ID=\"1\" TEXT=\"" + QByteArray(20000, 'o') + '"', "ID=\"2\" TEXT=\"ä\""})));
        EXPECT_TRUE(store.SaveDocument()); // in the form in which the next save finds it
        old = world.read(fileName);
    }

    /// The document that a save with this change leaves.
    [[nodiscard]] QByteArray changed(const QString& change) {
        world.write(fileName, old);
        EXPECT_EQ(run(program, {path(), change}), "saved 1\nkept 1\n");
        return world.read(fileName);
    }

    /// What the program printed.
    static QByteArray run(const QString& name, const QStringList& arguments) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(name, arguments);
        EXPECT_TRUE(process.waitForFinished(60000)) << qPrintable(name);
        return process.readAll();
    }

    /// What the probe prints when a save failed with this report.
    static QByteArray failed(const QByteArray& numberAndDescription) {
        return "report [cXMLHandler.Save Document] [" + numberAndDescription + "]\nsaved 0\nkept 1\n";
    }

    QByteArray old;
};
