#pragma once

#include <QString>

/// How a window stands on the screen; the values are the classic ones.
enum class FormState : qint32 { Normal = 0, Minimized = 1, Maximized = 2 };

/// What `GetFormSettings` and `SaveFormSettings` need of a window. Positions and sizes are twips.
class FormPlacement {
public:
    virtual ~FormPlacement() = default;

    /// The form's own name, for example "frmView".
    [[nodiscard]] virtual QString Name() const = 0;

    [[nodiscard]] virtual FormState WindowState() const = 0;
    virtual void setWindowState(FormState state) = 0;

    [[nodiscard]] virtual double Top() const = 0;
    virtual void setTop(double twips) = 0;
    [[nodiscard]] virtual double Left() const = 0;
    virtual void setLeft(double twips) = 0;
    [[nodiscard]] virtual double Height() const = 0;
    virtual void setHeight(double twips) = 0;
    [[nodiscard]] virtual double Width() const = 0;
    virtual void setWidth(double twips) = 0;
};
