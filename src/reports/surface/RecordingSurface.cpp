#include "reports/surface/RecordingSurface.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace {

void raise(const std::function<void()>& handler) {
    if (handler) {
        handler();
    }
}

} // namespace

QByteArray jsonLine(const SurfaceCall& call) {
    // Put together by hand, because a QJsonObject would sort its keys.
    const QByteArray op = QJsonDocument(QJsonArray{call.op}).toJson(QJsonDocument::Compact);
    const QByteArray args =
        QJsonDocument(QJsonArray::fromVariantList(call.args)).toJson(QJsonDocument::Compact);
    return "{\"op\":" + op.mid(1, op.size() - 2) + ",\"args\":" + args + "}";
}

RecordingSurface::RecordingSurface(ReportSurface& target, Sink sink)
    : target_(target)
    , sink_(std::move(sink))
    , targetNewPage_(std::exchange(target.onNewPage, nullptr))
    , targetFooter_(std::exchange(target.onFooter, nullptr)) {
    target_.onNewPage = [this] {
        raise(targetNewPage_);
        raise(onNewPage);
    };
    target_.onFooter = [this] {
        raise(targetFooter_);
        raise(onFooter);
    };
}

RecordingSurface::~RecordingSurface() {
    target_.onNewPage = std::move(targetNewPage_);
    target_.onFooter = std::move(targetFooter_);
}

void RecordingSurface::StartDoc() {
    record(QStringLiteral("StartDoc"));
    target_.StartDoc();
}

void RecordingSurface::EndDoc() {
    record(QStringLiteral("EndDoc"));
    target_.EndDoc();
}

void RecordingSurface::NewPage() {
    record(QStringLiteral("NewPage"));
    target_.NewPage();
}

bool RecordingSurface::PrintDialog(qint32 mode) {
    record(QStringLiteral("PrintDialog"), {mode});
    return target_.PrintDialog(mode);
}

void RecordingSurface::PrintDoc() {
    record(QStringLiteral("PrintDoc"));
    target_.PrintDoc();
}

void RecordingSurface::Write(const QString& text) {
    record(QStringLiteral("Write"), {text});
    target_.Write(text);
}

void RecordingSurface::TextBox(const QString& text, double x, double y, double width, double height) {
    record(QStringLiteral("TextBox"), {text, x, y, width, height});
    target_.TextBox(text, x, y, width, height);
}

void RecordingSurface::DrawCircle(double x, double y, double radius) {
    record(QStringLiteral("DrawCircle"), {x, y, radius});
    target_.DrawCircle(x, y, radius);
}

void RecordingSurface::DrawCircle(double x, double y, double radius, double angle1, double angle2) {
    record(QStringLiteral("DrawCircle"), {x, y, radius, angle1, angle2});
    target_.DrawCircle(x, y, radius, angle1, angle2);
}

void RecordingSurface::DrawRectangle(double left, double top, double right, double bottom) {
    record(QStringLiteral("DrawRectangle"), {left, top, right, bottom});
    target_.DrawRectangle(left, top, right, bottom);
}

void RecordingSurface::setProperty(SurfaceProperty property, const QVariant& value) {
    record(surfacePropertyName(property), {value});
    target_.setProperty(property, value);
}

void RecordingSurface::record(const QString& op, const QVariantList& args) {
    // Recorded ahead of the call itself, so that what an event handler does during it follows it.
    sink_({op, args});
}
