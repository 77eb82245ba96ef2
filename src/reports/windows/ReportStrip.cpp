#include "reports/windows/ReportStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int betweenRelated = 8;
constexpr int betweenGroups = 16;

QPushButton* smallButton(QWidget* parent, const QString& name, const QString& caption,
                         const QString& accessibleName) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAccessibleName(accessibleName);
    // Enter belongs to the window's own button, wherever the focus stands.
    button->setAutoDefault(false);
    button->setFixedWidth(button->sizeHint().height() + betweenRelated);
    return button;
}

} // namespace

ReportStrip::ReportStrip(const QString& pageLabel, QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("vsZoom"));
    setAccessibleName(tr("Zoom and pages"));

    auto* lblZoom = new QLabel(QStringLiteral("Zoom:"), this);
    lblZoom->setObjectName(QStringLiteral("lblZoom"));
    lblZoom->setAccessibleName(tr("Zoom"));
    cmdMinus = smallButton(this, QStringLiteral("cmdMinus"), QStringLiteral("-"), tr("Zoom out"));
    cmdPlus = smallButton(this, QStringLiteral("cmdPlus"), QStringLiteral("+"), tr("Zoom in"));
    cmdPrev = smallButton(this, QStringLiteral("cmdPrev"), QStringLiteral("<"), tr("Previous page"));
    cmdNext = smallButton(this, QStringLiteral("cmdNext"), QStringLiteral(">"), tr("Next page"));
    cmdPrev->setEnabled(false);
    cmdNext->setEnabled(false);

    lblPageCount = new QLabel(pageLabel, this);
    lblPageCount->setObjectName(QStringLiteral("lblPageCount"));
    lblPageCount->setAccessibleName(tr("Page shown"));
    lblPageCount->setTextFormat(Qt::PlainText);
    lblPageCount->setAlignment(Qt::AlignCenter);
    // Wide enough for three digits a number, so that the buttons stand still while one turns the pages.
    lblPageCount->setMinimumWidth(
        lblPageCount->fontMetrics().horizontalAdvance(QStringLiteral("Page 000 of 000")));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(betweenRelated);
    row->addWidget(lblZoom);
    row->addWidget(cmdMinus);
    row->addWidget(cmdPlus);
    row->addSpacing(betweenGroups);
    row->addStretch(1);
    row->addWidget(cmdPrev);
    row->addWidget(lblPageCount);
    row->addWidget(cmdNext);
    row->addStretch(1);
    row->addSpacing(betweenGroups);
    buttons_ = new QHBoxLayout;
    buttons_->setSpacing(betweenRelated);
    row->addLayout(buttons_);
}

QPushButton* ReportStrip::addButton(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAccessibleName(QString(caption).remove(u'&'));
    button->setAutoDefault(false);
    // The buttons of a row share the width of the widest.
    int width = button->sizeHint().width();
    for (int i = 0; i < buttons_->count(); ++i) {
        width = qMax(width, buttons_->itemAt(i)->widget()->minimumWidth());
    }
    buttons_->addWidget(button);
    for (int i = 0; i < buttons_->count(); ++i) {
        buttons_->itemAt(i)->widget()->setMinimumWidth(width);
    }
    return button;
}
