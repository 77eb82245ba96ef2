#pragma once

#include "compass/PlanSurface.h"

#include <optional>
#include <variant>
#include <vector>

struct PlanLine {
    float x1 = 0;
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;

    bool operator==(const PlanLine&) const = default;
};

struct PlanArc {
    /// Angles as they were given, signs included.
    struct Span {
        float start = 0;
        float end = 0;

        bool operator==(const Span&) const = default;
    };

    float x = 0;
    float y = 0;
    float radius = 0;
    qint32 color = 0;
    /// Nothing for a whole circle.
    std::optional<Span> span;
    /// The inside; nothing where it is not painted.
    std::optional<qint32> fill;

    bool operator==(const PlanArc&) const = default;
};

struct PlanText {
    float x = 0;
    float y = 0;
    QString text;
    PlanSpace space;
    float fontSize = 0;
    bool bold = false;

    bool operator==(const PlanText&) const = default;
};

/// A scale in the list holds for what follows it.
using PlanItem = std::variant<PlanScale, PlanLine, PlanArc, PlanText>;

/// A surface that keeps what is drawn on it, to be painted at any size and as often as needed.
class PlanPicture final : public PlanSurface {
public:
    [[nodiscard]] const std::vector<PlanItem>& items() const { return items_; }

    void setScale(const PlanScale& scale) override;
    void Cls() override;
    void Line(float x1, float y1, float x2, float y2) override;
    void Circle(float x, float y, float radius) override;
    void Circle(float x, float y, float radius, qint32 color, float start, float end) override;
    using PlanSurface::Print;
    void Print(const QString& text, const PlanSpace& space) override;

private:
    std::vector<PlanItem> items_;
};
