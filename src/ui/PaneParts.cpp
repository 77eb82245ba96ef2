#include "ui/PaneParts.h"

#include "core/Conversion.h"
#include "core/Global.h"
#include "core/Prompts.h"
#include "core/clsRegistry.h"
#include "store/cXMLHandler.h"
#include "ui/ViewFrame.h"
#include "ui/platform/ComboList.h"
#include "ui/widgets/RecordList.h"

#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>

QPushButton* PaneParts::makeButton(const QString& name, const QString& caption, const QString& toolTip,
                                   QWidget* parent) {
    auto* button = named(new QPushButton(caption, parent), name, QString(caption).remove(u'&'), toolTip);
    button->setAutoDefault(true); // Enter presses the button that has the focus
    return button;
}

QLabel* PaneParts::makeLabel(const QString& name, const QString& caption, QWidget* parent) {
    auto* label = new QLabel(caption, parent);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    return label;
}

void PaneParts::makeAlike(std::initializer_list<QPushButton*> buttons, const QString& otherCaption) {
    const QPushButton other(otherCaption);
    QSize size = other.sizeHint();
    for (const QPushButton* button : buttons) {
        size = size.expandedTo(button->sizeHint());
    }
    for (QPushButton* button : buttons) {
        button->setMinimumSize(size);
        QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        policy.setRetainSizeWhenHidden(true);
        button->setSizePolicy(policy);
    }
}

RecordList* PaneParts::makeList(QWidget& pane, const QString& name, const QString& accessibleName,
                                const QString& toolTip) {
    auto* list = new RecordList(&pane);
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setToolTip(toolTip);
    return list;
}

void PaneParts::fillList(ViewFrame& frame, ComboList& list, cXMLHandler& store, const QString& nameField,
                         const QString& keyField) {
    const QScopedValueRollback filling(frame.Filling, true);
    list.Clear();
    for (bool more = store.MoveFirst(); more; more = store.MoveNext()) {
        const QString name = store.GetAttribute(nameField);
        if (name.isEmpty()) {
            break;
        }
        list.AddItem(name, Conversion::toLong(store.GetAttribute(keyField)));
    }
}

void PaneParts::rememberLast(const QString& setting, const QVariant& id) {
    clsRegistry registry;
    registry.SaveSetting(clsRegistry::CurrentUser, Global::settingsSection(QStringLiteral("StartUp")),
                         setting, id);
}

bool PaneParts::ask(const QString& title, const QString& question) {
    return Global::service(&Services::prompts)
               .messageBox(title, question, MessageIcon::Question, MessageButtons::YesNo) ==
           MessageAnswer::Yes;
}

void PaneParts::inform(const QString& title, const QString& text) {
    Global::service(&Services::prompts).messageBox(title, text, MessageIcon::Information, MessageButtons::Ok);
}

void PaneParts::warn(const QString& title, const QString& text) {
    Global::service(&Services::prompts).messageBox(title, text, MessageIcon::Exclamation, MessageButtons::Ok);
}
