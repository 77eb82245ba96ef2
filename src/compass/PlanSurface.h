#pragma once

#include <QString>
#include <QtGlobal>

/// How the inside of a closed figure is painted; the values are the classic ones.
enum class PlanFill : qint32 { Solid = 0, Transparent = 1 };

/// The user scale of a surface: what its left and top edge stand for, and how far it reaches. A unit is an
/// inch of the plan; an inch is as long across as down.
struct PlanScale {
    float ScaleLeft = -400;
    float ScaleTop = -400;
    float ScaleWidth = 800;
    float ScaleHeight = 800;

    bool operator==(const PlanScale&) const = default;
};

/// The space that a text must keep to, in inches; a width of 0 is any.
struct PlanSpace {
    float width = 0;
    float height = 0;

    bool operator==(const PlanSpace&) const = default;
};

/// What a plan and its compass are drawn on: the screen, the printer, or a test. Colours are stored colour
/// values, red in the lowest byte; angles are mathematical radians, counter-clockwise from the right.
class PlanSurface {
public:
    PlanSurface() = default;
    PlanSurface(const PlanSurface&) = delete;
    PlanSurface& operator=(const PlanSurface&) = delete;
    virtual ~PlanSurface() = default;

    PlanFill FillStyle = PlanFill::Transparent;
    qint32 FillColor = 0;
    /// The top left corner of the next text.
    float CurrentX = 0;
    float CurrentY = 0;
    /// In points; 0 is the surface's own size.
    float FontSize = 0;
    bool FontBold = false;

    [[nodiscard]] const PlanScale& scale() const { return scale_; }
    virtual void setScale(const PlanScale& scale) { scale_ = scale; }

    /// Takes away all that was drawn.
    virtual void Cls() = 0;
    virtual void Line(float x1, float y1, float x2, float y2) = 0;
    /// A whole circle in black, filled by `FillStyle` and `FillColor`.
    virtual void Circle(float x, float y, float radius) = 0;
    /// An arc. An angle below 0 stands for its positive value with a line from there to the centre; when
    /// both are, the slice is closed and filled by `FillStyle` and `FillColor`.
    virtual void Circle(float x, float y, float radius, qint32 color, float start, float end) = 0;
    /// Writes a text from the current point on. Where it is too wide for its space it goes on in further
    /// lines, and is cut with an ellipsis where these are too many.
    virtual void Print(const QString& text, const PlanSpace& space) = 0;
    void Print(const QString& text) { Print(text, {}); }

private:
    PlanScale scale_;
};

/// Fills a slice of a circle between two compass angles, in degrees.
void PieSlice(PlanSurface& obj, float x, float y, float radius, qint32 Color, float start_ang, float end_ang);
