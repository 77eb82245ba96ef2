#include "reports/windows/ReportPager.h"

#include "core/Global.h"
#include "core/Prompts.h"
#include "reports/surface/ReportSurface.h"
#include "reports/windows/ReportStrip.h"

#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>

#include <array>

namespace {

constexpr qint32 percentMode = 0;
constexpr double fullSize = 100;

/// Where a zoom mode leads. Index is the present mode.
struct ModeStep {
    qint32 plus;
    qint32 minus;
};

constexpr std::array<ModeStep, 5> modeSteps = {{{1, 3}, {2, 0}, {3, 1}, {4, 2}, {0, 3}}};

void setMode(ReportSurface& surface, qint32 ModeStep::*direction) {
    const qint32 mode = surface.ZoomMode();
    if (mode < 0 || mode >= static_cast<qint32>(modeSteps.size())) {
        return;
    }
    const qint32 next = modeSteps.at(static_cast<std::size_t>(mode)).*direction;
    surface.ZoomMode(next);
    if (next == percentMode) {
        surface.Zoom(fullSize);
    }
}

} // namespace

ZoomSteps ZoomSteps::throughModes() {
    return {[](ReportSurface& surface) { setMode(surface, &ModeStep::plus); },
            [](ReportSurface& surface) { setMode(surface, &ModeStep::minus); }};
}

ZoomSteps ZoomSteps::byTens() {
    constexpr double step = 10;
    return {[](ReportSurface& surface) {
                const double zoom = surface.Zoom();
                surface.Zoom(zoom < fullSize - step ? zoom + step : fullSize);
            },
            [](ReportSurface& surface) {
                const double zoom = surface.Zoom();
                surface.Zoom(zoom > step ? zoom - step : step);
            }};
}

ReportPager::ReportPager(ReportSurface& surface, ReportStrip& strip, const ZoomSteps& zoom,
                         const ReportLabels& labels)
    : surface_(surface)
    , strip_(strip)
    , zoom_(zoom)
    , labels_(labels) {
    connect(strip.cmdPlus, &QPushButton::clicked, this, &ReportPager::cmdPlus_Click);
    connect(strip.cmdMinus, &QPushButton::clicked, this, &ReportPager::cmdMinus_Click);
    connect(strip.cmdNext, &QPushButton::clicked, this, &ReportPager::cmdNext_Click);
    connect(strip.cmdPrev, &QPushButton::clicked, this, &ReportPager::cmdPrev_Click);
}

void ReportPager::run(const QString& label, const std::function<void()>& body) {
    if (label.isEmpty()) {
        passOver(body);
    } else {
        routine(label, body);
    }
}

void ReportPager::UpdatePageLabel() {
    strip_.lblPageCount->setText(
        QStringLiteral("Page %1 of %2").arg(surface_.PreviewPage()).arg(surface_.PageCount()));
}

void ReportPager::showFirstPage() {
    UpdatePageLabel();
    strip_.cmdNext->setEnabled(surface_.PageCount() > 1);
    strip_.cmdPrev->setEnabled(false);
}

void ReportPager::showChosenPage() {
    UpdatePageLabel();
    strip_.cmdNext->setEnabled(surface_.PreviewPage() < surface_.PageCount());
    strip_.cmdPrev->setEnabled(surface_.PreviewPage() > 1);
}

void ReportPager::turned(QPushButton* button, QPushButton* other, bool atEnd) {
    // The keyboard's focus would leap to the next control, where the key that turned the page prints.
    const bool focused = button->hasFocus();
    UpdatePageLabel();
    other->setEnabled(true);
    if (atEnd) {
        if (focused) {
            other->setFocus();
        }
        button->setEnabled(false);
    }
}

void ReportPager::cmdNext_Click() {
    run(labels_.next, [this] {
        if (surface_.PreviewPage() < surface_.PageCount()) {
            surface_.PreviewPage(static_cast<qint16>(surface_.PreviewPage() + 1));
        }
        turned(strip_.cmdNext, strip_.cmdPrev, surface_.PreviewPage() >= surface_.PageCount());
    });
}

void ReportPager::cmdPrev_Click() {
    run(labels_.previous, [this] {
        if (surface_.PreviewPage() >= 2) {
            surface_.PreviewPage(static_cast<qint16>(surface_.PreviewPage() - 1));
        }
        turned(strip_.cmdPrev, strip_.cmdNext, surface_.PreviewPage() < 2);
    });
}

void ReportPager::cmdPlus_Click() {
    run(labels_.plus, [this] { zoom_.plus(surface_); });
}

void ReportPager::cmdMinus_Click() {
    run(labels_.minus, [this] { zoom_.minus(surface_); });
}

void ReportPager::print() {
    run(labels_.print, [this] {
        if (surface_.PrintDialog(0)) {
            surface_.PrintDoc();
        }
    });
}

void ReportPager::saveAsHtml(const std::function<void()>& write) {
    run(labels_.saveAs, [&] {
        const QString answer = Global::service(&Services::prompts)
                                   .inputBox(QStringLiteral("Save to HTML"),
                                             QStringLiteral("Please enter a fully qualified html filename to "
                                                            "save the report to."),
                                             Global::dataFolder() + QStringLiteral("Temp.html"));
        surface_.ExportFile(answer);
        // A document that cannot be written must not keep the next ones from being shown.
        const auto noFile = qScopeGuard([this] { surface_.ExportFile(QString()); });
        write();
    });
}
