#pragma once

#include "reports/surface/ReportSurface.h"

#include <QHash>

/// A page surface that keeps the state it is given and draws nothing, so that calculations run without any
/// window. It has one endless page of letter height.
class NullSurface final : public ReportSurface {
public:
    void StartDoc() override {}
    void EndDoc() override {}
    void NewPage() override {}
    [[nodiscard]] qint16 PageCount() const override { return 0; }
    [[nodiscard]] double PageHeight() const override { return 15840; }
    bool PrintDialog(qint32 /*mode*/) override { return false; }
    void PrintDoc() override {}
    using ReportSurface::Write;
    void Write(const QString& /*text*/) override {}
    void TextBox(const QString& /*text*/, double /*x*/, double /*y*/, double /*width*/,
                 double /*height*/) override {}
    void DrawCircle(double /*x*/, double /*y*/, double /*radius*/) override {}
    void DrawCircle(double /*x*/, double /*y*/, double /*radius*/, double /*angle1*/,
                    double /*angle2*/) override {}
    void DrawRectangle(double /*left*/, double /*top*/, double /*right*/, double /*bottom*/) override {}
    void setProperty(SurfaceProperty property, const QVariant& value) override;
    [[nodiscard]] QVariant property(SurfaceProperty property) const override;
    [[nodiscard]] QString FontFace() const override { return QStringLiteral("Arial"); }

private:
    QHash<SurfaceProperty, QVariant> state_;
};
