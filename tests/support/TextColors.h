#pragma once

#include <QColor>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

/// A text that a widget painted: where, with which colour.
struct PaintedText {
    QString text;
    QRectF place;
    QColor color;
};

/// Notes the texts that are painted on it and forgets the rest.
class TextRecorder final : public QPaintDevice, private QPaintEngine {
public:
    explicit TextRecorder(QSize size)
        : QPaintEngine(QPaintEngine::AllFeatures)
        , size_(size) {}

    /// The texts of a window as it stands, in the window's coordinates.
    static std::vector<PaintedText> textsOf(QWidget& window) {
        TextRecorder recorder(window.size());
        window.render(&recorder);
        return std::move(recorder.texts_);
    }

    [[nodiscard]] QPaintEngine* paintEngine() const override { return const_cast<TextRecorder*>(this); }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
        constexpr int dotsPerInch = 96;
        constexpr int colors = 1 << 24;
        switch (metric) {
        case PdmWidth:
            return size_.width();
        case PdmHeight:
            return size_.height();
        case PdmDepth:
            return 32;
        case PdmNumColors:
            return colors;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return dotsPerInch;
        }
    }

private:
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*picture*/, const QRectF& /*from*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QRectF place(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        const QRectF shown = state->transform().mapRect(place) & QRectF(systemClip().boundingRect());
        // A selected text is painted twice, each time with the other one's ground cut out.
        const bool cutOut = painter()->hasClipping() && !painter()->clipPath().contains(place.center());
        if (!shown.isEmpty() && !cutOut) {
            texts_.push_back({.text = item.text(), .place = shown, .color = state->pen().color()});
        }
    }
    [[nodiscard]] Type type() const override { return User; }

    QSize size_;
    std::vector<PaintedText> texts_;
};

/// The colour that most of a part of a picture has; the steps of a gradient count as one.
inline QColor groundOf(const QImage& picture, const QRect& part) {
    constexpr QRgb shade = 0xFFF0F0F0;
    std::map<QRgb, std::pair<int, QRgb>> counts; // by shade: how often, and a colour of it
    std::pair<int, QRgb> commonest;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            const QRgb color = picture.pixel(x, y);
            auto& [count, sample] = counts[color & shade];
            sample = color;
            ++count;
            commonest = std::max(commonest, {count, sample});
        }
    }
    return {commonest.second};
}
