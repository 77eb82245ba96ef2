#pragma once

#include "reports/pages/PageDocument.h"
#include "reports/surface/ReportSurface.h"

#include <array>

/// The page surface that keeps what is written on it as pages, for the preview, the printer and HTML.
///
/// Properties persist from document to document. Writing and drawing outside `StartDoc` and `EndDoc` is
/// passed over. A paragraph whose `CurrentX` was set begins there and never breaks inside a word; any other
/// stands between the indents. A page's header, colours and borders are those in force when the page ends;
/// what a footer event changes of the header font holds for that page's footer only.
class PageSurface final : public ReportSurface {
public:
    /// A surface with pages of a size in twips.
    explicit PageSurface(QSizeF pageSize = systemPageSize());

    /// Letter where the user's regional settings measure in US units, A4 elsewhere; in twips.
    [[nodiscard]] static QSizeF systemPageSize();

    /// The finished document; it has no pages before the first `EndDoc` and between `StartDoc` and
    /// `EndDoc`.
    [[nodiscard]] const PageDocument& document() const { return document_; }
    /// Names the documents from here on, for files and the print queue. Without a name, or with an empty one,
    /// they are called by their first header.
    void setTitle(const QString& title) { document_.title = title; }
    [[nodiscard]] QSizeF pageSize() const { return document_.pageSize; }

    /// Called when what a preview shows has changed: a document was begun or finished, or `PreviewPage`,
    /// `Zoom`, `ZoomMode` or `ToolTipText` was set.
    std::function<void()> onViewChanged;

    /// In a fit mode it is the preview that finds the size: this is the percentage that it came to, which
    /// `Zoom` reads as meanwhile, so that a step from there goes on from what the eye sees.
    void setShownZoom(double percent) { shownZoom_ = percent; }

    void StartDoc() override;
    /// Closes the document. Throws a Failure when `ExportFile` cannot be written; the document is finished
    /// all the same.
    void EndDoc() override;
    void NewPage() override;
    [[nodiscard]] qint16 PageCount() const override;
    [[nodiscard]] double PageHeight() const override { return document_.pageSize.height(); }
    bool PrintDialog(qint32 mode) override;
    void PrintDoc() override;
    using ReportSurface::Write;
    void Write(const QString& text) override;
    void TextBox(const QString& text, double x, double y, double width, double height) override;
    void DrawCircle(double x, double y, double radius) override;
    void DrawCircle(double x, double y, double radius, double angle1, double angle2) override;
    void DrawRectangle(double left, double top, double right, double bottom) override;
    void setProperty(SurfaceProperty property, const QVariant& value) override;
    [[nodiscard]] QVariant property(SurfaceProperty property) const override;
    [[nodiscard]] QString FontFace() const override { return PageFonts::defaultFace(); }

private:
    enum class Event : quint8 { None, NewPage, Footer };
    static constexpr std::size_t propertyCount = static_cast<std::size_t>(SurfaceProperty::ZoomMode) + 1;

    void set(SurfaceProperty property, const QVariant& value);
    [[nodiscard]] const QVariant& value(SurfaceProperty property) const;
    [[nodiscard]] double number(SurfaceProperty property) const;
    [[nodiscard]] bool flag(SurfaceProperty property) const { return value(property).toBool(); }
    [[nodiscard]] QColor color(SurfaceProperty property) const;
    [[nodiscard]] TextStyle bodyStyle();
    [[nodiscard]] TextStyle headerStyle();
    [[nodiscard]] ShapeStyle shapeStyle() const;
    [[nodiscard]] std::shared_ptr<const LaidText> lay(const QString& text, const TextStyle& style,
                                                      const LineLimits& limits);

    void add(PageItem item);
    void makeRoom(double lineHeight);
    void startPage();
    void finishPage();
    [[nodiscard]] RunningText runningText(SurfaceProperty property);
    void addRules(Page& page) const;
    void notify() const;

    std::array<QVariant, propertyCount> values_;
    PageFonts fonts_;
    PageDocument document_;
    /// The pages of the open document.
    std::vector<Page> draft_;
    bool open_ = false;
    /// The header was set since the last page ended.
    bool headerBegins_ = false;
    Event raising_ = Event::None;
    double currentX_ = 0;
    double currentY_ = 0;
    /// `CurrentX` was set since the last paragraph.
    bool positioned_ = false;
    double shownZoom_ = 0;
};
