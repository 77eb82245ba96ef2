#pragma once

#include "reports/surface/NullSurface.h"
#include "reports/surface/RecordingSurface.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <string>
#include <vector>

/// A call as tests spell it: FontSize(14), Write("text"), StartDoc().
inline std::string spelled(const SurfaceCall& call) {
    const QByteArray list =
        QJsonDocument(QJsonArray::fromVariantList(call.args)).toJson(QJsonDocument::Compact);
    return call.op.toStdString() + '(' + list.mid(1, list.size() - 2).toStdString() + ')';
}

/// A surface for builders under test: draws nothing and notes every call.
class RecordedReport {
public:
    [[nodiscard]] const std::vector<SurfaceCall>& calls() const { return calls_; }

    [[nodiscard]] std::vector<std::string> spelledCalls() const {
        std::vector<std::string> all;
        all.reserve(calls_.size());
        for (const SurfaceCall& call : calls_) {
            all.push_back(spelled(call));
        }
        return all;
    }

    /// The first argument, as text, of every call of one operation.
    [[nodiscard]] std::vector<std::string> arguments(const QString& op) const {
        std::vector<std::string> found;
        for (const SurfaceCall& call : calls_) {
            if (call.op == op) {
                found.push_back(call.args.isEmpty() ? std::string()
                                                    : call.args.first().toString().toStdString());
            }
        }
        return found;
    }

    void clear() { calls_.clear(); }

private:
    std::vector<SurfaceCall> calls_;
    NullSurface target_;

public:
    /// What the builder writes onto.
    RecordingSurface vp{target_, [this](const SurfaceCall& call) { calls_.push_back(call); }};
};
