#include "compass/windows/frmSetDirection.h"

#include "core/Failure.h"

frmSetDirection::frmSetDirection(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmSetDirection"));
    setWindowTitle(QStringLiteral("Set Direction"));
}

bool frmSetDirection::SetDirection() {
    return routine(u"frmSetDirection.Set Direction", false, [this](bool& /*result*/) { exec(); });
}
