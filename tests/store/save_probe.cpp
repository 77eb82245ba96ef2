// Loads a record file, changes its first record and saves it, for tests that stop, starve or restrict a whole
// process: save_probe FILE grow|shrink|stay [drop|unreserved]. It raises SIGSTOP right before and after the
// save when SAVE_PROBE_STOPS is set, saves without root's rights when "drop" is given and as on a disk that
// reserves no room when "unreserved" is, and prints what happened.

#include "core/Global.h"
#include "core/Prompts.h"
#include "store/cXMLHandler.h"

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <string_view>

namespace {

/// A user with no rights of its own.
constexpr uid_t nobody = 65534;

class PrintedPrompts final : public Prompts {
public:
    MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon /*icon*/,
                             MessageButtons /*buttons*/) override {
        std::printf("report [%s] [%s]\n", qPrintable(title),
                    qPrintable(text.section(QStringLiteral("\r\n"), 1)));
        return MessageAnswer::Ok;
    }
    QString inputBox(const QString& /*title*/, const QString& /*prompt*/,
                     const QString& /*initial*/) override {
        return {};
    }
    [[nodiscard]] PointerShape pointer() const override { return PointerShape::Default; }
    void setPointer(PointerShape /*shape*/) override {}
};

/// Makes the system refuse to reserve room for a file, as disks do that know no such thing.
bool refuseReserving() {
    std::array<sock_filter, 4> filter{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_fallocate, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// The first record's text after the change. A record file of the tests starts with 20,000 letters there.
QString changedText(std::string_view change) {
    if (change == "grow") {
        return QString(60000, u'g');
    }
    return change == "shrink" ? QStringLiteral("short") : QString(20000, u's');
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        return 2;
    }
    PrintedPrompts prompts;
    Services services;
    services.prompts = &prompts;
    Global::use(services);

    cXMLHandler store;
    if (!store.LoadDocument(QString::fromLocal8Bit(argv[1]))) {
        std::puts("not loaded");
        return 1;
    }
    const QString field = QStringLiteral("TEXT");
    const QString text = changedText(argv[2]);
    store.SetAttribute(field, text);
    const std::string_view restriction = argc > 3 ? argv[3] : "";
    const bool drops = restriction == "drop" && getuid() == 0;
    if (drops && seteuid(nobody) != 0) {
        return 2;
    }
    if (restriction == "unreserved" && !refuseReserving()) {
        std::puts("nothing can be refused here");
        return 3;
    }
    const bool stops = qEnvironmentVariableIsSet("SAVE_PROBE_STOPS");
    if (stops) {
        std::raise(SIGSTOP);
    }
    const bool saved = store.SaveDocument();
    if (stops) {
        std::raise(SIGSTOP);
    }
    if (drops && seteuid(0) != 0) { // a build that counts lines writes its counts at the end
        return 2;
    }
    std::printf("saved %d\n", saved ? 1 : 0);
    std::printf("kept %d\n", store.GetAttribute(field) == text ? 1 : 0);
    return 0;
}
