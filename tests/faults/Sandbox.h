#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// What can be wrong with a file, or with the disk below it.
enum class Fault {
    None,
    Missing,     ///< the file is gone
    Empty,       ///< the file has no byte
    Truncated,   ///< the file ends in its middle
    Directory,   ///< a folder stands in its place
    NotReadable, ///< the user may write the file but not read it
    NotWritable, ///< the user may read the file but not write it
    LockedUp,    ///< the user may neither write the file nor change its folder
    FullDisk,    ///< there is no room for another byte
    NearlyFull,  ///< there is room for a part of what will be written
    NoFolder,    ///< the folder has gone with all that was in it
};

/// The fault's name, for the messages of a test.
[[nodiscard]] const char* nameOf(Fault fault);

/// Every file and folder below a folder with its bytes, so that a later look can say what has changed.
class FolderSnapshot {
public:
    explicit FolderSnapshot(const QString& folder);
    /// The paths, relative to the folder, of all that came, went or changed since an earlier look.
    [[nodiscard]] QStringList changedSince(const FolderSnapshot& earlier) const;

private:
    QMap<QString, QByteArray> contents_;
};

/// Makes this process one of a user without rights of its own for as long as it lives: to root nothing is
/// forbidden. Where the tests run as such a user anyway, nothing changes.
class Unprivileged {
public:
    Unprivileged();
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;
    ~Unprivileged();

    /// Hands a folder and all below it to that user.
    static void own(const QString& folder);

private:
    bool dropped_ = false;
};

/// A small disk of its own in memory, on which temporary folders are made while it lives. Where nothing may
/// be mounted, the memory that all programs share serves, which cannot be filled up.
class SmallDisk {
public:
    SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk();

    /// Whether this process may mount a disk.
    [[nodiscard]] static bool isPossible();
    /// Leaves so many bytes of room, in whole pages of memory.
    void fill(qsizetype room);

private:
    QTemporaryDir mountPoint_;
    QByteArray temporaryFolder_;
    bool mounted_ = false;
};

/// Brings a fault over a file; a full disk is a matter of SmallDisk.
void inflict(Fault fault, const QString& file);
