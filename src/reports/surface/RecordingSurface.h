#pragma once

#include "reports/surface/ReportSurface.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <functional>

/// One property write or call on a page surface, by its name as a report writes it; "Write" is the default
/// property. Arguments are texts, numbers and flags.
struct SurfaceCall {
    QString op;
    QVariantList args;

    [[nodiscard]] bool operator==(const SurfaceCall&) const = default;
};

/// The call as one line of JSON without its line end, {"op":"FontSize","args":[14]}: UTF-8, keys in this
/// order, numbers with every digit that they need to be read back the same.
[[nodiscard]] QByteArray jsonLine(const SurfaceCall& call);

/// A page surface that hands every property write and call to a sink, in order, and then passes it on to
/// another surface. Reads are that surface's answers and are not recorded. While the recorder lives it
/// receives the other surface's events: they go to the handlers that were set there before, then to its own.
class RecordingSurface final : public ReportSurface {
public:
    using Sink = std::function<void(const SurfaceCall&)>;

    /// `target` must outlive the recorder.
    RecordingSurface(ReportSurface& target, Sink sink);
    ~RecordingSurface() override;

    void StartDoc() override;
    void EndDoc() override;
    void NewPage() override;
    [[nodiscard]] qint16 PageCount() const override { return target_.PageCount(); }
    [[nodiscard]] double PageHeight() const override { return target_.PageHeight(); }
    bool PrintDialog(qint32 mode) override;
    void PrintDoc() override;
    using ReportSurface::Write;
    void Write(const QString& text) override;
    void TextBox(const QString& text, double x, double y, double width, double height) override;
    void DrawCircle(double x, double y, double radius) override;
    void DrawCircle(double x, double y, double radius, double angle1, double angle2) override;
    void DrawRectangle(double left, double top, double right, double bottom) override;
    void setProperty(SurfaceProperty property, const QVariant& value) override;
    [[nodiscard]] QVariant property(SurfaceProperty property) const override {
        return target_.property(property);
    }
    [[nodiscard]] QString FontFace() const override { return target_.FontFace(); }

private:
    void record(const QString& op, const QVariantList& args = {});

    ReportSurface& target_;
    Sink sink_;
    std::function<void()> targetNewPage_;
    std::function<void()> targetFooter_;
};
