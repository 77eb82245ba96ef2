#pragma once

#include "core/Prompts.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

/// Ends the run with a message: a promise does not hold. Not an assertion, since those vanish in Release.
[[noreturn]] void broken(const QString& promise);

/// The surroundings of a fuzz target: boxes that nobody answers, and a folder in memory.
class FuzzWorld {
public:
    FuzzWorld();

    [[nodiscard]] QString file(const QString& name) const { return folder_.filePath(name); }

private:
    class NoUser final : public Prompts {
    public:
        MessageAnswer messageBox(const QString& /*title*/, const QString& /*text*/, MessageIcon /*icon*/,
                                 MessageButtons buttons) override {
            return buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
        }
        QString inputBox(const QString& /*title*/, const QString& /*prompt*/,
                         const QString& /*initial*/) override {
            return {};
        }
        [[nodiscard]] PointerShape pointer() const override { return PointerShape::Default; }
        void setPointer(PointerShape /*shape*/) override {}
    };

    NoUser user_;
    QTemporaryDir folder_;
};

/// Cuts an input into the pieces that a target needs. An input that has run out gives zeros and empty texts.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : rest_(QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size))) {}

    [[nodiscard]] bool atEnd() const { return rest_.isEmpty(); }
    [[nodiscard]] std::uint8_t byte();
    [[nodiscard]] double number();
    /// As many bytes as a length byte before them tells.
    [[nodiscard]] QString text();
    [[nodiscard]] QByteArray rest() const { return rest_; }

private:
    QByteArray take(qsizetype size);

    QByteArray rest_;
};
