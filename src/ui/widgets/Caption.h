#pragma once

#include <QString>

/// The program's captions are plain texts in which "&&" stands for an ampersand and a single "&" marks an
/// accelerator; a line break is CR LF.

/// A text as part of a caption: every "&" doubled, so that it shows as one and marks no accelerator.
[[nodiscard]] QString captionText(QString text);

/// What a caption looks like: "&&" as an ampersand, the mark of an accelerator not at all.
[[nodiscard]] QString shownCaption(const QString& caption);
