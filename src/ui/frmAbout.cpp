#include "ui/frmAbout.h"

#include "core/Global.h"
#include "core/VersionRecord.h"
#include "ui/platform/WidgetPlacement.h"

#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int between = 8;
constexpr int group = 16;
constexpr int edge = 24;

/// The box's picture, as sharp as the screen can show it.
class AboutPicture final : public QWidget {
public:
    explicit AboutPicture(QWidget* parent)
        : QWidget(parent) {
        constexpr int side = 96;
        setFixedSize(side, side);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        picture_.paint(&painter, rect());
    }

private:
    QIcon picture_{QStringLiteral(":/talivane/pictures/about.svg")};
};

QLabel* makeText(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

} // namespace

frmAbout::frmAbout(QWidget* parent)
    : QDialog(parent) {
    constexpr int designWidth = 440;
    setObjectName(QStringLiteral("frmAbout"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(edge, edge, edge, group);
    column->setSpacing(group);
    column->addLayout(buildTitle());

    auto* Line1 = new QFrame(this);
    Line1->setObjectName(QStringLiteral("Line1"));
    Line1->setFrameShape(QFrame::HLine);
    Line1->setFrameShadow(QFrame::Plain);
    Line1->setForegroundRole(QPalette::Mid);
    column->addWidget(Line1);

    lblDisclaimer = makeText(QStringLiteral("lblDisclaimer"), this);
    column->addWidget(lblDisclaimer);
    column->addStretch();

    auto* cmdOK = new QPushButton(QStringLiteral("&OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setAccessibleName(tr("OK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmAbout::cmdOK_Click);
    column->addWidget(cmdOK, 0, Qt::AlignRight);
    cmdOK->setFocus();
    setMinimumWidth(designWidth);
}

QLayout* frmAbout::buildTitle() {
    constexpr double titleSize = 1.4;
    auto* Image1 = new AboutPicture(this);
    Image1->setObjectName(QStringLiteral("Image1"));
    lblTitle = makeText(QStringLiteral("lblTitle"), this);
    QFont large = lblTitle->font();
    large.setPointSizeF(QFontInfo(large).pointSizeF() * titleSize);
    large.setWeight(QFont::DemiBold);
    lblTitle->setFont(large);
    lblVersion = makeText(QStringLiteral("lblVersion"), this);
    lblDescription = makeText(QStringLiteral("lblDescription"), this);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(between);
    texts->addWidget(lblTitle);
    texts->addWidget(lblVersion);
    texts->addWidget(lblDescription);
    texts->addStretch();
    auto* row = new QHBoxLayout;
    row->setSpacing(group);
    row->addWidget(Image1, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    return row;
}

void frmAbout::ShowAbout() {
    routine(u"frmAbout.ShowAbout", [this] {
        Form_Load();
        exec();
        Form_Unload();
    });
}

void frmAbout::Form_Load() {
    const QString title = VersionRecord::title.toString();
    setWindowTitle(QStringLiteral("About ") + title);
    lblVersion->setText(QStringLiteral("Version %1.%2.%3")
                            .arg(VersionRecord::majorNumber)
                            .arg(VersionRecord::minorNumber)
                            .arg(VersionRecord::revisionNumber));
    lblTitle->setText(title);
    lblDescription->setText(VersionRecord::legalTrademarks.toString() + u'\n' +
                            VersionRecord::legalRights.toString());
    lblDisclaimer->setText(VersionRecord::comments.toString());
    adjustSize();
    restorePlacement(*this);
}

void frmAbout::Form_Unload() {
    savePlacement(*this);
}

void frmAbout::cmdOK_Click() {
    passOver([this] { hide(); });
}
