#pragma once

#include "support/WindowDriver.h"
#include "ui/platform/DialogPrompts.h"

/// Opens each kind of box that asks or tells, and hands it over.
inline void visitBoxes(const std::function<void(QWidget&)>& visit) {
    DialogPrompts prompts;
    WindowDriver::whileModal(
        [&] {
            prompts.messageBox(QStringLiteral("Delete"), QStringLiteral("Is it to go?"),
                               MessageIcon::Question, MessageButtons::YesNo);
        },
        visit);
    WindowDriver::whileModal(
        [&] {
            prompts.messageBox(QStringLiteral("Deleted"), QStringLiteral("It is gone."),
                               MessageIcon::Information, MessageButtons::Ok);
        },
        visit);
    WindowDriver::whileModal(
        [&] {
            prompts.inputBox(QStringLiteral("Rename"), QStringLiteral("What is its name?"),
                             QStringLiteral("Attic"));
        },
        visit);
}
