#pragma once

#include "core/Browser.h"
#include "faults/NotedBoxes.h"
#include "faults/Sandbox.h"
#include "support/TestWorld.h"
#include "ui/frmView.h"
#include "ui/platform/QSettingsStore.h"
#include "ui/platform/SystemPrinter.h"

#include <memory>
#include <optional>

/// A printer that writes a file, without a dialog.
class FilePrinter final : public Printer {
public:
    explicit FilePrinter(const QString& file);
    bool choose() override { return true; }
    void print(const PrintableDocument& document) override { system_.printOnDevice(document); }

private:
    SystemPrinter system_;
};

/// The program over a sandbox in which one thing goes wrong: the sample household with its eleven reference
/// tables, settings in a file of their own, and a folder for what is exported. A user's operation runs up to
/// `strike`, which brings the fault, and on; what is noted and compared begins there.
class FaultStage {
public:
    /// `place` is the name of a data file, or a path below the sandbox that holds a "/".
    FaultStage(const QString& place, Fault fault);
    FaultStage(const FaultStage&) = delete;
    FaultStage& operator=(const FaultStage&) = delete;
    ~FaultStage();

    static inline const QString settingsFile = QStringLiteral("settings/Talivane.ini");
    static inline const QString exportFile = QStringLiteral("out/report.html");
    static inline const QString pdfFile = QStringLiteral("out/report.pdf");

    NotedBoxes boxes;
    /// Leaves a file with these bytes where the fault will be, instead of what stands there.
    void put(const QByteArray& content) const { putFile(place_, content); }
    [[nodiscard]] QByteArray content() const;

    /// Starts the program.
    void start();
    /// Brings the fault. From here on the program has no more rights than a user.
    void strike();
    /// Ends the operation: gives the rights back and looks at the disk.
    void finish();

    [[nodiscard]] frmView& view() const { return *view_; }
    [[nodiscard]] QString pathOf(const QString& place) const;
    /// The places that are not as they were when the fault came.
    [[nodiscard]] const QStringList& changed() const { return changed_; }

    /// The sample household's text of a setting of the group "StartUp".
    [[nodiscard]] QString setting(const char* name) const;

private:
    void putFile(const QString& place, const QByteArray& content) const;
    void putSettings() const;
    void handIn();
    [[nodiscard]] FolderSnapshot look() const { return FolderSnapshot(root_); }

    SmallDisk disk_; // for every stage: it is also quicker than a disk that is shared
    TestWorld world_;
    QString root_;
    QString place_;
    Fault fault_;
    std::unique_ptr<QSettingsStore> settings_;
    std::unique_ptr<FilePrinter> printer_;
    std::unique_ptr<frmView> view_;
    std::optional<FolderSnapshot> struck_;
    std::optional<Unprivileged> user_;
    QStringList changed_;
};
