#include "reports/windows/ReportMenu.h"

#include <QDialog>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>

void addReportMenu(QDialog& window, const QString& closeName, const ReportMenuHandlers& handlers) {
    auto* bar = new QMenuBar(&window);
    QMenu* mnuFile = bar->addMenu(QStringLiteral("&File"));
    mnuFile->setObjectName(QStringLiteral("mnuFile"));
    const auto add = [&](const QString& name, const QString& caption, const std::function<void()>& handler) {
        QAction* entry = mnuFile->addAction(caption, &window, handler);
        entry->setObjectName(name);
    };
    add(QStringLiteral("mnuFilePrint"), QStringLiteral("&Print"), handlers.print);
    add(QStringLiteral("mnuFileSaveAs"), QStringLiteral("&Save as HTML"), handlers.saveAs);
    mnuFile->addSeparator()->setObjectName(QStringLiteral("mnuFileSep1"));
    add(closeName, QStringLiteral("&Close"), handlers.close);
    window.layout()->setMenuBar(bar);
}
