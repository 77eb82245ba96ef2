#include "transcript/TranscriptPrompts.h"

#include <utility>

TranscriptPrompts::TranscriptPrompts(RecordingSurface::Sink sink)
    : sink_(std::move(sink)) {}

MessageAnswer TranscriptPrompts::messageBox(const QString& title, const QString& text, MessageIcon icon,
                                            MessageButtons buttons) {
    sink_({QStringLiteral("MessageBox"), {title, text, static_cast<qint32>(icon)}});
    return buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Ok;
}

QString TranscriptPrompts::inputBox(const QString& title, const QString& prompt, const QString& initial) {
    sink_({QStringLiteral("InputBox"), {title, prompt, initial}});
    return {};
}
