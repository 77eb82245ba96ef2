#include "core/windows/UpDown.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace {

QToolButton* makeArrow(UpDown& owner, const QString& name, Qt::ArrowType arrow) {
    auto* button = new QToolButton(&owner);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void setName(UpDown& owner, const QString& arrow, const QString& name) {
    auto* button = owner.findChild<QToolButton*>(owner.objectName() + arrow);
    button->setAccessibleName(name);
    button->setToolTip(name);
}

} // namespace

UpDown::UpDown(const QString& name, QLabel* text, QWidget* parent)
    : QWidget(parent) {
    setObjectName(name);
    QToolButton* down = makeArrow(*this, name + QStringLiteral("Down"), Qt::LeftArrow);
    QToolButton* up = makeArrow(*this, name + QStringLiteral("Up"), Qt::RightArrow);
    connect(down, &QToolButton::clicked, this, &UpDown::DownClick);
    connect(up, &QToolButton::clicked, this, &UpDown::UpClick);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(down);
    row->addWidget(text, 1);
    row->addWidget(up);
}

void UpDown::setNames(const QString& down, const QString& up) {
    setName(*this, QStringLiteral("Down"), down);
    setName(*this, QStringLiteral("Up"), up);
}
