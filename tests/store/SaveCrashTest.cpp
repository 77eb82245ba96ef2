#include "SaveProbe.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// Starts a program that its parent traces, with its output thrown away.
pid_t startTraced(const QByteArrayList& command) {
    std::vector<char*> arguments;
    for (const QByteArray& each : command) {
        arguments.push_back(const_cast<char*>(each.constData()));
    }
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_WRONLY);
        dup2(nothing, STDOUT_FILENO);
        dup2(nothing, STDERR_FILENO);
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        execv(arguments.front(), arguments.data());
        _exit(127);
    }
    return child;
}

/// Lets a traced child run to the next stop of this kind; false when it ended.
bool runTo(pid_t child, __ptrace_request request, int signal) {
    while (ptrace(request, child, nullptr, nullptr) == 0) {
        int status = 0;
        if (waitpid(child, &status, 0) != child || !WIFSTOPPED(status)) {
            return false;
        }
        if (WSTOPSIG(status) == signal || WSTOPSIG(status) == SIGSTOP) {
            return true;
        }
    }
    return false;
}

void end(pid_t child) {
    kill(child, SIGKILL);
    int status = 0;
    while (waitpid(child, &status, 0) == child && !WIFSIGNALED(status) && !WIFEXITED(status)) {
    }
}

} // namespace

class SaveCrashTest : public SaveProbe {
protected:
    /// The signal of a stop at a system call, once PTRACE_O_TRACESYSGOOD is set.
    static constexpr int systemCall = SIGTRAP | 0x80;

    SaveCrashTest() { qputenv("SAVE_PROBE_STOPS", "1"); }
    ~SaveCrashTest() override { qunsetenv("SAVE_PROBE_STOPS"); }

    /// Runs the probe up to its save, ends it after `stops` entries into and returns from system calls, and
    /// says whether the save was still going on.
    bool endDuringSave(const QString& change, const QByteArray& restriction, int stops) {
        const pid_t child = startTraced(
            {QFile::encodeName(program), QFile::encodeName(path()), change.toLatin1(), restriction});
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD), 0);
        EXPECT_TRUE(runTo(child, PTRACE_CONT, SIGSTOP));
        bool saving = true;
        for (int i = 0; i < stops && saving; ++i) {
            saving = runTo(child, PTRACE_SYSCALL, systemCall) && lastStop(child) == systemCall;
        }
        end(child);
        return saving;
    }

    static int lastStop(pid_t child) {
        siginfo_t info = {};
        ptrace(PTRACE_GETSIGINFO, child, nullptr, &info);
        return info.si_code == systemCall ? systemCall : info.si_signo;
    }

    /// Ends the process before and after each system call of a save in turn. After each the file must load
    /// and be the old document or the new one, perhaps with blanks behind its root. Both must have been seen.
    void expectOldOrNewAfterEachCall(const QString& change, const QByteArray& restriction = {}) {
        qunsetenv("SAVE_PROBE_STOPS");
        const QByteArray next = changed(change);
        ASSERT_NE(next, old);
        qputenv("SAVE_PROBE_STOPS", "1");
        int oldSeen = 0;
        int newSeen = 0;
        int paddedSeen = 0;
        bool saving = true;
        for (int stops = 0; saving && !HasFailure(); ++stops) {
            ASSERT_LT(stops, 2000);
            world.write(fileName, old);
            saving = endDuringSave(change, restriction, stops);
            const QByteArray found = world.read(fileName);
            cXMLHandler after;
            EXPECT_TRUE(after.LoadDocument(path())) << "after " << stops << " stops";
            EXPECT_EQ(after.RecordCount, 2);
            QByteArray trimmed = found;
            while (trimmed.endsWith(' ')) {
                trimmed.chop(1);
            }
            EXPECT_TRUE(trimmed == old || trimmed == next)
                << "after " << stops << " stops: " << found.size() << " bytes";
            oldSeen += trimmed == old ? 1 : 0;
            newSeen += found == next ? 1 : 0;
            paddedSeen += found != next && trimmed == next ? 1 : 0;
        }
        EXPECT_GT(oldSeen, 5);
        EXPECT_GT(newSeen, 2);
        EXPECT_EQ(paddedSeen > 0, next.size() < old.size());
    }
};

TEST_F(SaveCrashTest, SaveDocument_endedAtAnySystemCallWhileGrowing_leavesTheOldOrTheNewDocument) {
    expectOldOrNewAfterEachCall(u"grow"_s);
}

TEST_F(SaveCrashTest, SaveDocument_endedAtAnySystemCallWhileShrinking_leavesTheOldOrTheNewDocument) {
    expectOldOrNewAfterEachCall(u"shrink"_s);
}

TEST_F(SaveCrashTest, SaveDocument_endedAtAnySystemCallAtTheSameSize_leavesTheOldOrTheNewDocument) {
    expectOldOrNewAfterEachCall(u"stay"_s);
}

TEST_F(SaveCrashTest, SaveDocument_endedOnADiskThatReservesNoRoom_leavesTheOldOrTheNewDocument) {
    qunsetenv("SAVE_PROBE_STOPS");
    if (run(program, {path(), u"stay"_s, u"unreserved"_s}) == "nothing can be refused here\n") {
        GTEST_SKIP() << "no system call can be refused here";
    }
    expectOldOrNewAfterEachCall(u"grow"_s, "unreserved");
}
