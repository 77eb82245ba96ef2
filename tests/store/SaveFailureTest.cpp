#include "SaveProbe.h"

#include <QDir>
#include <QFileInfo>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class SaveFailureTest : public SaveProbe {
protected:
    /// The save must fail with this report, false as its result and the change still in memory.
    void expectFailure(const QString& target, qint32 number, const QString& description) {
        store.SetAttribute(u"TEXT"_s, u"changed"_s);
        world.prompts.expectError(u"cXMLHandler.Save Document"_s, number, description);
        EXPECT_FALSE(store.SaveDocument(target)) << qPrintable(target);
        EXPECT_EQ(field("TEXT"), u"changed"_s);
        EXPECT_TRUE(world.prompts.isSatisfied());
    }

    /// How to get a mount namespace of one's own; empty when it is not permitted.
    static QStringList privateMounts() {
        for (const QString& flags : {u"-m"_s, u"-Urm"_s}) {
            if (QProcess::execute(u"unshare"_s, {flags, u"sh"_s, u"-c"_s, u"mount -t tmpfs tmpfs /mnt"_s}) ==
                0) {
                return {flags};
            }
        }
        return {};
    }

    /// A script that saves on a small disk, which a filler behind the record file takes up as far as told;
    /// its last line hands the file out.
    static QString onSmallDisk(const QString& filler, const QString& probeArguments) {
        return uR"(
        mount -t tmpfs -o size=96k tmpfs "$2" && cp "$3" "$2/records.xml" || exit 1
        dd if=/dev/zero of="$2/filler" bs=1k %1 2>/dev/null
        "$1" "$2/records.xml" "$4" %2
        cat "$2/records.xml" > "$3.after")"_s.arg(filler, probeArguments);
    }

    /// Runs a shell script with the probe as $1 and arguments behind it.
    static QByteArray script(const QString& text, const QStringList& arguments,
                             const QStringList& unshare = {}) {
        const QStringList shell = {u"sh"_s, u"-c"_s, text, u"sh"_s, program};
        return unshare.isEmpty() ? run(u"sh"_s, shell.mid(1) + arguments)
                                 : run(u"unshare"_s, unshare + shell + arguments);
    }
};

TEST_F(SaveFailureTest, SaveDocument_anyChangeOfLength_leavesExactlyTheNewDocument) {
    for (const QString& change : {u"grow"_s, u"shrink"_s, u"stay"_s}) {
        const QByteArray next = changed(change);
        EXPECT_NE(next, old);
        EXPECT_TRUE(next.endsWith("</xml>\n")) << qPrintable(change);
        EXPECT_TRUE(store.LoadDocument());
    }
}

TEST_F(SaveFailureTest, SaveDocument_newName_writesThereAndRemembersIt) {
    const QString copy = world.file(u"Kopie ä.xml"_s);
    EXPECT_TRUE(store.SaveDocument(copy));
    EXPECT_EQ(store.ExternalFileName, copy);
    EXPECT_EQ(world.read(u"Kopie ä.xml"_s), old);
    EXPECT_EQ(QDir(world.folder()).entryList({u"Kopie*"_s}, QDir::AllEntries).size(), 1); // nothing beside it
}

TEST_F(SaveFailureTest, SaveDocument_folderThatVanished_isPathNotFound) {
    expectFailure(world.file(u"gone/Records.xml"_s), 76, u"Path not found"_s);
    expectFailure(path() + u"/Records.xml"_s, 76, u"Path not found"_s); // a file where the folder was
    EXPECT_EQ(world.read(fileName), old);
}

TEST_F(SaveFailureTest, SaveDocument_folderWhereTheFileMustGo_isAPathAccessError) {
    world.remove(fileName);
    ASSERT_TRUE(QDir().mkdir(path()));
    expectFailure(path(), 75, u"Path/File access error"_s);
    EXPECT_TRUE(QFileInfo(path()).isDir());
}

TEST_F(SaveFailureTest, SaveDocument_noUsableName_isABadFileName) {
    const QString badName = u"Bad file name or number"_s;
    expectFailure(u""_s, 52, badName);
    expectFailure(path() + QChar(u'\0'), 52, badName);
    expectFailure(world.file(QString(300, u'x')), 52, badName);
    EXPECT_EQ(world.read(fileName), old);
}

TEST_F(SaveFailureTest, SaveDocument_whatIsNoRegularFile_isAPathAccessError) {
    const QString pipe = world.file(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    expectFailure(pipe, 75, u"Path/File access error"_s);
    expectFailure(u"/dev/null"_s, 75, u"Path/File access error"_s);
    const QString nowhere = world.file(u"link to nowhere"_s);
    ASSERT_EQ(symlink("no such file", QFile::encodeName(nowhere).constData()), 0);
    expectFailure(nowhere, 75, u"Path/File access error"_s);
    EXPECT_TRUE(QFileInfo(nowhere).isSymLink());
}

TEST_F(SaveFailureTest, SaveDocument_links_goOnBeingLinks) {
    const QString soft = world.file(u"soft.xml"_s);
    const QString hard = world.file(u"hard.xml"_s);
    ASSERT_EQ(symlink(QFile::encodeName(path()).constData(), QFile::encodeName(soft).constData()), 0);
    ASSERT_EQ(link(QFile::encodeName(path()).constData(), QFile::encodeName(hard).constData()), 0);
    ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), 0640), 0);
    for (const QString& name : {soft, hard}) {
        store.SetAttribute(u"TEXT"_s, name);
        ASSERT_TRUE(store.SaveDocument(name));
        EXPECT_TRUE(world.read(fileName).contains(name.toUtf8()));
    }
    EXPECT_TRUE(QFileInfo(soft).isSymLink());
    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(path()).constData(), &status), 0);
    EXPECT_EQ(status.st_nlink, 2U);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST_F(SaveFailureTest, SaveDocument_readOnlyFile_isPermissionDenied) {
    // The probe gives up root's rights before it saves; the way to the file must be open to anybody.
    ASSERT_EQ(chmod(QFile::encodeName(world.folder()).constData(), 0755), 0);
    ASSERT_EQ(chmod(QFile::encodeName(QFileInfo(world.folder()).path()).constData(), 0755), 0);
    ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), 0444), 0);
    for (const QString& change : {u"grow"_s, u"shrink"_s}) {
        EXPECT_EQ(run(program, {path(), change, u"drop"_s}), failed("70-Permission denied"));
        EXPECT_EQ(world.read(fileName), old);
    }
}

TEST_F(SaveFailureTest, SaveDocument_limitOfFileSize_isDiskFullWithTheOldFileWhole) {
    const QString limited = u"ulimit -f 100; exec \"$1\" \"$2\" \"$3\""_s; // 51,200 bytes
    EXPECT_EQ(script(limited, {path(), u"grow"_s}), failed("61-Disk full"));
    EXPECT_EQ(world.read(fileName), old);
    EXPECT_EQ(script(limited, {path(), u"shrink"_s}), "saved 1\nkept 1\n");
}

TEST_F(SaveFailureTest, SaveDocument_fullDisk_isDiskFullWithTheOldFileWhole) {
    const QStringList unshare = privateMounts();
    if (unshare.isEmpty()) {
        GTEST_SKIP() << "no mount namespace is permitted here, neither as root nor as a user";
    }
    const QString text = onSmallDisk(QString(), QString());
    const QString disk = world.file(u"disk"_s);
    ASSERT_TRUE(QDir().mkdir(disk));
    EXPECT_EQ(script(text, {disk, path(), u"grow"_s}, unshare), failed("61-Disk full"));
    EXPECT_EQ(world.read(fileName + u".after"_s), old);
    EXPECT_EQ(script(text, {disk, path(), u"stay"_s}, unshare), "saved 1\nkept 1\n");
    EXPECT_EQ(world.read(fileName + u".after"_s).size(), old.size());
    EXPECT_EQ(script(text, {disk, path(), u"shrink"_s}, unshare), "saved 1\nkept 1\n");
    EXPECT_TRUE(world.read(fileName + u".after"_s).contains("TEXT=\"short\""));
}

TEST_F(SaveFailureTest, SaveDocument_fullDiskThatReservesNoRoom_isDiskFullWithTheOldFileWhole) {
    const QStringList unshare = privateMounts();
    if (unshare.isEmpty()) {
        GTEST_SKIP() << "no mount namespace is permitted here, neither as root nor as a user";
    }
    if (run(program, {path(), u"stay"_s, u"unreserved"_s}) == "nothing can be refused here\n") {
        GTEST_SKIP() << "no system call can be refused here";
    }
    old = world.read(fileName);
    // Some room is left behind the file, but too little for what it grows by.
    const QString text = onSmallDisk(u"count=48"_s, u"unreserved"_s);
    const QString disk = world.file(u"disk"_s);
    ASSERT_TRUE(QDir().mkdir(disk));
    EXPECT_EQ(script(text, {disk, path(), u"grow"_s}, unshare), failed("61-Disk full"));
    EXPECT_EQ(world.read(fileName + u".after"_s), old);
    EXPECT_EQ(script(text, {disk, path(), u"shrink"_s}, unshare), "saved 1\nkept 1\n");
}

TEST_F(SaveFailureTest, SaveDocument_diskThatReservesNoRoom_isWrittenAllTheSame) {
    for (const QString& change : {u"grow"_s, u"shrink"_s, u"stay"_s}) {
        const QByteArray next = changed(change);
        world.write(fileName, old);
        const QByteArray said = run(program, {path(), change, u"unreserved"_s});
        if (said == "nothing can be refused here\n") {
            GTEST_SKIP() << "no system call can be refused here";
        }
        EXPECT_EQ(said, "saved 1\nkept 1\n");
        EXPECT_EQ(world.read(fileName), next);
    }
}

TEST_F(SaveFailureTest, SaveDocument_newFileThatFindsNoRoom_leavesNoEmptyFile) {
    struct rlimit limit = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const struct rlimit small = {1000, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    store.SetAttribute(u"MORE"_s, QString(2000, u'm'));
    expectFailure(world.file(u"new.xml"_s), 61, u"Disk full"_s);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_FALSE(QFile::exists(world.file(u"new.xml"_s)));
}

TEST_F(SaveFailureTest, SaveDocument_readOnlyDisk_isPermissionDenied) {
    const QStringList unshare = privateMounts();
    if (unshare.isEmpty()) {
        GTEST_SKIP() << "no mount namespace is permitted here, neither as root nor as a user";
    }
    const QString text = uR"(
        mount -t tmpfs tmpfs "$2" && cp "$3" "$2/records.xml" && mount -o remount,ro "$2" || exit 1
        "$1" "$2/records.xml" "$4"
        cat "$2/records.xml" > "$3.after")"_s;
    const QString disk = world.file(u"disk"_s);
    ASSERT_TRUE(QDir().mkdir(disk));
    for (const QString& change : {u"grow"_s, u"shrink"_s}) {
        EXPECT_EQ(script(text, {disk, path(), change}, unshare), failed("70-Permission denied"));
        EXPECT_EQ(world.read(fileName + u".after"_s), old);
    }
}

TEST_F(SaveFailureTest, SaveDocument_noMoreFilesMayBeOpen_isTooManyFilesWithTheOldFileWhole) {
    // A failure beforehand: the sanitizers look at each kind of object once, and need a file for that.
    expectFailure(u"/dev/null"_s, 75, u"Path/File access error"_s);
    struct rlimit limit = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    const int next = dup(0); // the lowest number that is free, and so the one that the save would get
    ASSERT_NE(next, -1);
    close(next);
    const struct rlimit starved = {static_cast<rlim_t>(next), limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &starved), 0);
    expectFailure(path(), 67, u"Too many files"_s);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    EXPECT_EQ(world.read(fileName), old);
    EXPECT_TRUE(store.SaveDocument());
}
