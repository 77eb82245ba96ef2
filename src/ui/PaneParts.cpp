#include "ui/PaneParts.h"

#include "core/Conversion.h"
#include "core/Global.h"
#include "core/clsRegistry.h"
#include "store/cXMLHandler.h"
#include "ui/ViewFrame.h"
#include "ui/platform/ComboList.h"
#include "ui/widgets/TitleBand.h"

#include <QComboBox>
#include <QScopedValueRollback>
#include <QVBoxLayout>

TitleBand* PaneParts::addBand(QWidget& pane, QVBoxLayout& column, const QString& name) {
    auto* band = new TitleBand(&pane);
    band->setObjectName(name);
    column.setContentsMargins(0, 0, 0, 0);
    column.addWidget(band);
    column.addStretch(1);
    return band;
}

QComboBox* PaneParts::makeList(QWidget& pane, const QString& name, const QString& accessibleName,
                               const QString& toolTip) {
    auto* list = new QComboBox(&pane);
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setToolTip(toolTip);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
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
