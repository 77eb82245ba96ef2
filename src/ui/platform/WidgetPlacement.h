#pragma once

#include "core/FormPlacement.h"

class QWidget;

/// A window's placement in twips, 15 to the logical pixel. The window's objectName is its name in the
/// settings. The position is that of the frame, the size that of the contents, so that what is stored comes
/// back as it was whatever frame the desktop draws.
class WidgetPlacement final : public FormPlacement {
public:
    explicit WidgetPlacement(QWidget& window)
        : window_(window) {}

    [[nodiscard]] QString Name() const override;
    [[nodiscard]] FormState WindowState() const override;
    void setWindowState(FormState state) override;
    [[nodiscard]] double Top() const override;
    void setTop(double twips) override;
    [[nodiscard]] double Left() const override;
    void setLeft(double twips) override;
    [[nodiscard]] double Height() const override;
    void setHeight(double twips) override;
    [[nodiscard]] double Width() const override;
    void setWidth(double twips) override;

    /// Makes the window no larger than its screen, and moves it wholly onto a screen that exists when it had
    /// to be cut or its title bar could not be reached where it stands.
    void keepOnScreen();

private:
    QWidget& window_;
};

/// Puts a window where the settings say that it was left, on a screen that exists.
void restorePlacement(QWidget& window);

/// Stores where a window stands.
void savePlacement(QWidget& window);
