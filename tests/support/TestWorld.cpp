#include "support/TestWorld.h"

#include "core/Global.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

void copyXmlFiles(const QString& from, const QString& to) {
    const QDir source(from);
    for (const QString& name : source.entryList({QStringLiteral("*.xml")}, QDir::Files)) {
        const QString target = to + u'/' + name;
        QFile::remove(target);
        ASSERT_TRUE(QFile::copy(source.filePath(name), target)) << qPrintable(target);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    }
}

} // namespace

TestWorld::TestWorld(Records records)
    : locale_(QLocale::English, QLocale::UnitedStates) {
    folder_ = temporary_.path() + QStringLiteral("/Größe und 家 of records");
    QDir().mkpath(folder_);
    const QString data = QStringLiteral(TALIVANE_DATA_DIR);
    copyXmlFiles(data, folder_);
    if (records == Records::Sample) {
        copyXmlFiles(data + QStringLiteral("/sample"), folder_);
    }
    handIn();
}

TestWorld::~TestWorld() {
    Global::use({});
    Global::RegionalDecimal.clear();
    Global::CurrentFloorID = 0;
}

void TestWorld::handIn() {
    Services services;
    services.prompts = &prompts;
    services.settings = &settings;
    services.clock = &clock;
    services.mainWindow = &mainWindow;
    services.printer = &printer;
    services.browser = &browser;
    services.applicationPath = folder_;
    services.locale = locale_;
    Global::use(services);
    Global::RegionalDecimal = Global::GetRegionalSetting(22);
}

void TestWorld::setLocale(const QLocale& locale) {
    locale_ = locale;
    handIn();
}

QByteArray TestWorld::read(const QString& name) const {
    QFile target(file(name));
    EXPECT_TRUE(target.open(QIODevice::ReadOnly)) << qPrintable(target.fileName());
    return target.readAll();
}

void TestWorld::write(const QString& name, const QByteArray& content) const {
    QFile target(file(name));
    ASSERT_TRUE(target.open(QIODevice::WriteOnly | QIODevice::Truncate)) << qPrintable(target.fileName());
    ASSERT_EQ(target.write(content), content.size());
}

void TestWorld::remove(const QString& name) const {
    ASSERT_TRUE(QFile::remove(file(name)));
}
