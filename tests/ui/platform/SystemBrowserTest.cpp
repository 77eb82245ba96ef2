#include "ui/platform/SystemBrowser.h"

#include "support/QtPrinting.h"

#include <QDesktopServices>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

/// Takes the addresses of a scheme in place of the desktop's browser.
class CaughtAddresses final : public QObject {
    Q_OBJECT

public:
    CaughtAddresses() { QDesktopServices::setUrlHandler(scheme, this, "take"); }
    ~CaughtAddresses() override { QDesktopServices::unsetUrlHandler(scheme); }

    inline static const QString scheme = QStringLiteral("https");
    QList<QUrl> taken;

public Q_SLOTS:
    void take(const QUrl& address) { taken << address; }
};

} // namespace

TEST(SystemBrowser, open_handsTheAddressToTheDesktopUnchanged) {
    const CaughtAddresses caught;
    SystemBrowser browser;
    EXPECT_TRUE(browser.open(QStringLiteral("https://example.invalid/faq.html")));
    EXPECT_EQ(caught.taken, QList<QUrl>{QUrl(QStringLiteral("https://example.invalid/faq.html"))});
}

#include "SystemBrowserTest.moc"
