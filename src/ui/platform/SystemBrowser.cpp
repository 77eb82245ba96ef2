#include "ui/platform/SystemBrowser.h"

#include <QDesktopServices>
#include <QUrl>

bool SystemBrowser::open(const QString& address) {
    return QDesktopServices::openUrl(QUrl(address));
}
