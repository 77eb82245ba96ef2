#include "faults/FaultStage.h"

#include "app/Startup.h"
#include "core/Global.h"
#include "core/clsRegistry.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrinter>
#include <gtest/gtest.h>

#include <sys/stat.h>

FilePrinter::FilePrinter(const QString& file) {
    system_.device().setOutputFormat(QPrinter::PdfFormat);
    system_.device().setOutputFileName(file);
}

FaultStage::FaultStage(const QString& place, Fault fault)
    : world_(TestWorld::Records::Sample)
    , root_(QFileInfo(world_.folder()).path())
    , place_(place)
    , fault_(fault) {
    for (const QString& folder : {QFileInfo(settingsFile).path(), QFileInfo(exportFile).path()}) {
        EXPECT_TRUE(QDir(root_).mkdir(folder));
    }
    for (const QString& earlier : {exportFile, pdfFile}) {
        putFile(earlier, QByteArray(5000, 'e'));
    }
    putSettings();
    settings_ = std::make_unique<QSettingsStore>(pathOf(settingsFile));
    printer_ = std::make_unique<FilePrinter>(pathOf(pdfFile));
    view_ = std::make_unique<frmView>();
    boxes.input = pathOf(exportFile);
    handIn();
}

FaultStage::~FaultStage() {
    user_.reset();
    view_.reset();
    Global::CurrentProfile.reset();
    Global::CurrentLocation.reset();
    for (const QString& folder :
         {world_.folder(), root_ + QStringLiteral("/out"), root_ + QStringLiteral("/settings")}) {
        chmod(QFile::encodeName(folder).constData(), 0755); // so that all can be removed
    }
}

/// Settings as an earlier run left them. They are no writing of this stage's own store, which may remember
/// what it wrote.
void FaultStage::putSettings() const {
    const QTemporaryDir earlier;
    QSettingsStore store(earlier.filePath(QStringLiteral("Talivane.ini")));
    for (const char* name : {"LastProfile", "LastLocation"}) {
        store.setValue(Global::settingsSection(QStringLiteral("StartUp")), QString::fromLatin1(name),
                       {1, QByteArray("1\0", 2)});
    }
    store.setValue(QStringLiteral("SOFTWARE\\Orvenel\\Other"), QStringLiteral("Kept"),
                   {1, QByteArray("words of another program\0", 25)});
    EXPECT_TRUE(QFile::copy(earlier.filePath(QStringLiteral("Talivane.ini")), pathOf(settingsFile)));
}

void FaultStage::handIn() {
    Services services = Global::services();
    services.prompts = &boxes;
    services.settings = settings_.get();
    services.printer = printer_.get();
    services.mainWindow = view_.get();
    Global::use(services);
}

QString FaultStage::pathOf(const QString& place) const {
    return (place.contains(u'/') ? root_ : world_.folder()) + u'/' + place;
}

void FaultStage::putFile(const QString& place, const QByteArray& content) const {
    QFile file(pathOf(place));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << qPrintable(place);
    ASSERT_EQ(file.write(content), content.size());
}

QByteArray FaultStage::content() const {
    QFile file(pathOf(place_));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(place_);
    return file.readAll();
}

void FaultStage::start() {
    Global::Main();
    view_->resize(1100, 760);
}

void FaultStage::strike() {
    EXPECT_TRUE(boxes.noted().isEmpty()) << "before the fault: " << qPrintable(boxes.noted().join(u'\n'));
    Unprivileged::own(root_);
    if (fault_ == Fault::FullDisk || fault_ == Fault::NearlyFull) {
        constexpr qsizetype somePages = 8192;
        disk_.fill(fault_ == Fault::FullDisk ? 0 : somePages);
    }
    inflict(fault_, pathOf(place_));
    Unprivileged::own(root_);
    struck_.emplace(look());
    user_.emplace();
}

void FaultStage::finish() {
    user_.reset();
    ASSERT_TRUE(struck_.has_value()) << "the fault never came";
    const QString dataFolder = QFileInfo(world_.folder()).fileName();
    for (const QString& path : look().changedSince(*struck_)) {
        changed_ << (path.startsWith(dataFolder + u'/') ? path.mid(dataFolder.size() + 1) : path);
    }
    changed_.sort();
}

QString FaultStage::setting(const char* name) const {
    const auto found =
        settings_->value(Global::settingsSection(QStringLiteral("StartUp")), QString::fromLatin1(name));
    return found ? QString::fromUtf8(found->data.chopped(1)) : QString();
}
