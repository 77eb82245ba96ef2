#include "faults/Sandbox.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

namespace {

/// A user with no rights of its own.
constexpr uid_t nobody = 65534;

QByteArray encoded(const QString& path) {
    return QFile::encodeName(path);
}

/// The bytes of a file, also of one that may not be read.
QByteArray bytesOf(const QString& path) {
    struct stat status = {};
    EXPECT_EQ(lstat(encoded(path).constData(), &status), 0) << qPrintable(path);
    chmod(encoded(path).constData(), 0600);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    const QByteArray bytes = file.readAll();
    chmod(encoded(path).constData(), status.st_mode & 07777U);
    return bytes;
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << qPrintable(path);
    ASSERT_EQ(file.write(bytes), bytes.size());
}

} // namespace

const char* nameOf(Fault fault) {
    constexpr std::array names = {"none",      "missing",          "empty",        "truncated",
                                  "directory", "not readable",     "not writable", "locked up",
                                  "full disk", "nearly full disk", "no folder"};
    return names.at(static_cast<std::size_t>(fault));
}

FolderSnapshot::FolderSnapshot(const QString& folder) {
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        each.next();
        const QString path = QDir(folder).relativeFilePath(each.filePath());
        contents_.insert(path, each.fileInfo().isDir() ? QByteArray("a folder") : bytesOf(each.filePath()));
    }
}

QStringList FolderSnapshot::changedSince(const FolderSnapshot& earlier) const {
    QStringList changed;
    for (auto entry = contents_.begin(); entry != contents_.end(); ++entry) {
        const auto before = earlier.contents_.find(entry.key());
        if (before == earlier.contents_.end() || before.value() != entry.value()) {
            changed << entry.key();
        }
    }
    for (auto entry = earlier.contents_.begin(); entry != earlier.contents_.end(); ++entry) {
        if (!contents_.contains(entry.key())) {
            changed << entry.key();
        }
    }
    changed.sort();
    return changed;
}

Unprivileged::Unprivileged() {
    if (geteuid() == 0) {
        // The saved id stays, so that the way back is open.
        dropped_ = setresuid(nobody, nobody, 0) == 0;
        EXPECT_TRUE(dropped_);
    }
}

Unprivileged::~Unprivileged() {
    if (dropped_) {
        EXPECT_EQ(setresuid(0, 0, 0), 0);
        prctl(PR_SET_DUMPABLE, 1); // what looks for leaks at the end must be able to look into the process
    }
}

void Unprivileged::own(const QString& folder) {
    if (geteuid() != 0) {
        return;
    }
    EXPECT_EQ(lchown(encoded(folder).constData(), nobody, nobody), 0);
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        EXPECT_EQ(lchown(encoded(each.next()).constData(), nobody, nobody), 0);
    }
}

SmallDisk::SmallDisk()
    : temporaryFolder_(qgetenv("TMPDIR"))
    , mounted_(isPossible() &&
               mount("tmpfs", encoded(mountPoint_.path()).constData(), "tmpfs", 0, "size=1m") == 0) {
    const QString shared = QStringLiteral("/dev/shm");
    if (mounted_) {
        qputenv("TMPDIR", encoded(mountPoint_.path()));
        EXPECT_EQ(chmod(encoded(mountPoint_.path()).constData(), 01777), 0);
    } else if (QFileInfo(shared).isWritable()) {
        qputenv("TMPDIR", encoded(shared));
    }
}

SmallDisk::~SmallDisk() {
    temporaryFolder_.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporaryFolder_);
    if (mounted_) {
        EXPECT_EQ(umount2(encoded(mountPoint_.path()).constData(), MNT_DETACH), 0);
    }
}

bool SmallDisk::isPossible() {
    // In a name space of this process's own, so that nobody else sees the disk.
    static const bool ownMounts =
        unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return ownMounts;
}

void SmallDisk::fill(qsizetype room) {
    ASSERT_TRUE(mounted_);
    QFile filler(mountPoint_.filePath(QStringLiteral("filler")));
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (const int size : {4096, 1}) {
        while (filler.write(QByteArray(size, 'f')) == size) {
        }
    }
    ASSERT_TRUE(filler.resize(filler.size() - room));
}

void inflict(Fault fault, const QString& file) {
    const QByteArray path = encoded(file);
    switch (fault) {
    case Fault::None:
    case Fault::FullDisk:
    case Fault::NearlyFull:
        break;
    case Fault::Missing:
        EXPECT_TRUE(QFile::remove(file) || !QFile::exists(file));
        break;
    case Fault::Empty:
        write(file, {});
        break;
    case Fault::Truncated: {
        const QByteArray whole = bytesOf(file);
        write(file, whole.left(whole.size() / 2));
        break;
    }
    case Fault::Directory:
        QFile::remove(file);
        EXPECT_TRUE(QDir().mkdir(file));
        break;
    case Fault::NotReadable:
        EXPECT_EQ(chmod(path.constData(), 0200), 0);
        break;
    case Fault::NotWritable:
        EXPECT_EQ(chmod(path.constData(), 0444), 0);
        break;
    case Fault::LockedUp:
        chmod(path.constData(), 0444); // where the file is there already
        EXPECT_EQ(chmod(encoded(QFileInfo(file).path()).constData(), 0555), 0);
        break;
    case Fault::NoFolder:
        EXPECT_TRUE(QDir(QFileInfo(file).path()).removeRecursively());
        break;
    }
}
