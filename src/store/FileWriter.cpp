#include "store/FileWriter.h"

#include "core/Failure.h"

#include <QFile>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

#ifdef Q_OS_UNIX

namespace {

Failure failureOf(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return failure(ErrorNumber::PathNotFound);
    case EACCES:
    case EPERM:
    case EROFS:
        return failure(ErrorNumber::PermissionDenied);
    case EISDIR:
    case EEXIST: // a link to a file that is gone
    case ELOOP:
    case ENXIO:
    case ETXTBSY:
        return failure(ErrorNumber::PathFileAccess);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return failure(ErrorNumber::DiskFull);
    case EMFILE:
    case ENFILE:
        return failure(ErrorNumber::TooManyFiles);
    case ENAMETOOLONG:
    case EINVAL:
        return failure(ErrorNumber::BadFileName);
    default:
        return failure(ErrorNumber::DeviceError);
    }
}

/// Repeats a call that a signal interrupted.
template<class Call>
auto retried(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// An open file that is being written over.
class OpenFile {
public:
    explicit OpenFile(const QByteArray& path)
        : path_(path) {
        // Nobody waits for the other end of a pipe that stands where the file must go.
        descriptor_ = retried([&] { return ::open(path.constData(), O_WRONLY | O_CLOEXEC | O_NONBLOCK); });
        if (descriptor_ == -1 && errno == ENOENT) {
            descriptor_ = retried(
                [&] { return ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666); });
            created_ = descriptor_ != -1;
        }
        if (descriptor_ == -1) {
            throw failureOf(errno);
        }
    }

    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    ~OpenFile() {
        if (descriptor_ != -1) {
            ::close(descriptor_);
        }
        if (created_ && !whole_) {
            ::unlink(path_.constData()); // what holds no document would only stand in the way
        }
    }

    [[nodiscard]] off_t size() const {
        struct stat status = {};
        check(::fstat(descriptor_, &status));
        if (!S_ISREG(status.st_mode)) {
            throw failure(ErrorNumber::PathFileAccess);
        }
        return status.st_size;
    }

    /// Makes sure that a file of `oldSize` bytes can have `size`, also where it has holes, before any byte of
    /// its content changes.
    void reserve(off_t oldSize, off_t size) const {
        struct rlimit limit = {};
        if (::getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY &&
            static_cast<rlim_t>(size) > limit.rlim_cur) {
            throw failure(ErrorNumber::DiskFull); // a write would stop half way, or end the program
        }
#ifdef Q_OS_LINUX
        const int result = retried([&] { return ::fallocate(descriptor_, FALLOC_FL_KEEP_SIZE, 0, size); });
        if (result == 0) {
            return;
        }
        if (errno != EOPNOTSUPP && errno != ENOSYS) {
            throw failureOf(errno);
        }
#endif
        // Some disks, sticks and network folders reserve nothing: blanks behind the content take the room up.
        if (size > oldSize) {
            try {
                writeAt(oldSize, QByteArray(static_cast<qsizetype>(size - oldSize), ' '));
                flush();
            } catch (const Failure&) {
                cut(oldSize);
                throw;
            }
        }
    }

    void write(const QByteArray& content) {
        writeAt(0, content);
        whole_ = true;
    }

    void cut(off_t size) const {
        check(retried([&] { return ::ftruncate(descriptor_, size); }));
    }

    void flush() const {
        const int result = retried([&] { return ::fsync(descriptor_); });
        if (result == -1 && errno != EINVAL && errno != ENOSYS) { // some file systems cannot flush
            throw failureOf(errno);
        }
    }

    void close() {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        if (::close(descriptor) == -1 && errno != EINTR) { // the last place where a network disk may complain
            throw failureOf(errno);
        }
    }

private:
    void writeAt(off_t place, const QByteArray& content) const {
        qsizetype done = 0;
        while (done < content.size()) {
            const ssize_t written = retried([&] {
                return ::pwrite(descriptor_, content.constData() + done,
                                static_cast<std::size_t>(content.size() - done),
                                place + static_cast<off_t>(done));
            });
            check(written);
            done += static_cast<qsizetype>(written);
        }
    }

    template<class Result>
    static void check(Result result) {
        if (result == -1) {
            throw failureOf(errno);
        }
    }

    QByteArray path_;
    int descriptor_ = -1;
    bool created_ = false;
    bool whole_ = false;
};

} // namespace

void writeOverFile(const QString& path, const QByteArray& content) {
    if (path.isEmpty() || path.contains(QChar(u'\0'))) {
        throw failure(ErrorNumber::BadFileName);
    }
    OpenFile file(QFile::encodeName(path));
    const off_t oldSize = file.size();
    const auto newSize = static_cast<off_t>(content.size());
    file.reserve(oldSize, std::max(newSize, oldSize));
    if (newSize > oldSize) {
        file.write(content);
    } else {
        file.write(content.leftJustified(static_cast<qsizetype>(oldSize), ' '));
        if (newSize < oldSize) {
            file.cut(newSize);
        }
    }
    file.flush();
    file.close();
}

#else

void writeOverFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    const bool whole =
        file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) &&
        file.write(content.leftJustified(file.size(), ' ')) == qMax(file.size(), content.size()) &&
        file.resize(content.size());
    if (!whole) {
        switch (file.error()) {
        case QFileDevice::OpenError:
        case QFileDevice::PermissionsError:
            throw failure(ErrorNumber::PermissionDenied);
        case QFileDevice::ResourceError:
            throw failure(ErrorNumber::DiskFull);
        default:
            throw failure(ErrorNumber::DeviceError);
        }
    }
}

#endif
