#include "pictures/DarkPalette.h"

#include <QColor>

QPalette darkPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x2E2E2E));
    palette.setColor(QPalette::WindowText, QColor(0xEDEDED));
    palette.setColor(QPalette::Base, QColor(0x1F1F1F));
    palette.setColor(QPalette::AlternateBase, QColor(0x2A2A2A));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3A3A3A));
    palette.setColor(QPalette::ToolTipText, QColor(0xEDEDED));
    palette.setColor(QPalette::Text, QColor(0xEDEDED));
    palette.setColor(QPalette::Button, QColor(0x3A3A3A));
    palette.setColor(QPalette::ButtonText, QColor(0xEDEDED));
    palette.setColor(QPalette::Mid, QColor(0x4A4A4A));
    palette.setColor(QPalette::Highlight, QColor(0x3D7EBF));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x8A8A8A));
    }
    return palette;
}
