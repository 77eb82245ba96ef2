#include "ui/widgets/SvgIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <memory>

namespace {

class SvgIconEngine final : public QIconEngine {
public:
    explicit SvgIconEngine(const QString& path)
        : path_(path) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        if (!picture_) {
            picture_ = std::make_shared<QSvgRenderer>(path_);
        }
        picture_->render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap image(size);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return image;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new SvgIconEngine(*this); }

    bool isNull() override { return false; }

private:
    QString path_;
    std::shared_ptr<QSvgRenderer> picture_;
};

} // namespace

QIcon svgIcon(const QString& path) {
    return QIcon(new SvgIconEngine(path));
}
