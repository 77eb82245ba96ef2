#include "ui/PaneParts.h"

#include "core/Conversion.h"
#include "core/Global.h"
#include "core/Prompts.h"
#include "core/clsRegistry.h"
#include "store/cXMLHandler.h"
#include "ui/ViewFrame.h"
#include "ui/platform/ComboList.h"
#include "ui/widgets/RecordList.h"
#include "ui/widgets/TitleBand.h"

#include <QIcon>
#include <QPainter>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace {

/// A picture in the middle of its room, drawn faintly, as sharp as the screen can show it.
class FaintPicture final : public QWidget {
public:
    FaintPicture(const QString& picture, QWidget* parent)
        : QWidget(parent)
        , picture_(picture) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr int side = 160;
        constexpr double strength = 0.35;
        QRect place(0, 0, side, side);
        place.moveCenter(rect().center());
        QPainter painter(this);
        painter.setOpacity(strength);
        picture_.paint(&painter, place);
    }

private:
    QIcon picture_;
};

} // namespace

TitleBand* PaneParts::addBand(QWidget& pane, QVBoxLayout& column, const QString& name,
                              const QString& picture) {
    auto* band = new TitleBand(&pane);
    band->setObjectName(name);
    column.setContentsMargins(0, 0, 0, 0);
    column.addWidget(band);
    column.addWidget(new FaintPicture(picture, &pane), 1);
    return band;
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
