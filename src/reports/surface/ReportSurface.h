#pragma once

#include <QSizeF>
#include <QString>
#include <QVariant>

#include <functional>

/// A property of the page surface. The names are those that a transcript of a report shows.
enum class SurfaceProperty : quint8 {
    BackColor,
    BrushColor,
    BrushStyle,
    Columns,
    CurrentX,
    CurrentY,
    ExportFile,
    FontBold,
    FontItalic,
    FontName,
    FontSize,
    FontUnderline,
    Footer,
    HdrColor,
    HdrFontBold,
    HdrFontItalic,
    HdrFontName,
    HdrFontSize,
    HdrFontStrikethru,
    HdrFontUnderline,
    Header,
    IndentFirst,
    IndentLeft,
    IndentRight,
    IndentTab,
    MarginBottom,
    MarginFooter,
    MarginHeader,
    MarginLeft,
    MarginRight,
    MarginTop,
    PageBorder,
    PenColor,
    PenStyle,
    PenWidth,
    PreviewPage,
    SpaceAfter,
    TableBorder,
    TextAlign,
    TextAngle,
    TextColor,
    ToolTipText,
    X1,
    X2,
    Y1,
    Y2,
    Zoom,
    ZoomMode,
};

/// The name of a property as it is written in the code of a report.
[[nodiscard]] QString surfacePropertyName(SurfaceProperty property);

/// The page surface on which every report, chart and compass is written: a document of pages with flowing
/// text, shapes, header and footer. These operations, and nothing else, are what calculations and report
/// builders call.
///
/// Positions, lengths, margins and indents are twips (1440 to the inch), font sizes points, the angles of
/// `DrawCircle` radians counter-clockwise from the right, `TextAngle` tenths of a degree counter-clockwise,
/// colours 24-bit numbers with red in the lowest byte. What is drawn later covers what was drawn before.
class ReportSurface {
public:
    ReportSurface() = default;
    ReportSurface(const ReportSurface&) = delete;
    ReportSurface& operator=(const ReportSurface&) = delete;
    virtual ~ReportSurface() = default;

    // Document and page.

    /// Discards the previous document and opens a new one at page 1.
    virtual void StartDoc() = 0;
    /// Closes the document; only then are `PageCount` and the preview valid. Writes `ExportFile` if set.
    virtual void EndDoc() = 0;
    /// Ends the page and opens the next.
    virtual void NewPage() = 0;
    [[nodiscard]] virtual qint16 PageCount() const = 0;
    /// Height of a page in twips.
    [[nodiscard]] virtual double PageHeight() const = 0;
    /// Shows the system's print dialog; `mode` is always 0. True when the user confirms.
    virtual bool PrintDialog(qint32 mode) = 0;
    /// Sends the finished document to the printer.
    virtual void PrintDoc() = 0;

    // Text and shapes.

    /// The default property: writes a paragraph at `CurrentX`, `CurrentY`, wrapped between the indents and
    /// across pages, and moves `CurrentY` below it. "\r\n" ends a line, "\t" goes to the next tab stop.
    virtual void Write(const QString& text) = 0;
    void Write(qint32 number) { Write(QString::number(number)); }
    /// Writes text at a position, turned by `TextAngle` about it, without moving the flow. A height of 0
    /// means as high as the text is.
    virtual void TextBox(const QString& text, double x, double y, double width, double height) = 0;
    /// A filled disc.
    virtual void DrawCircle(double x, double y, double radius) = 0;
    /// A filled wedge running counter-clockwise from `angle1` to `angle2`, each modulo a full turn.
    virtual void DrawCircle(double x, double y, double radius, double angle1, double angle2) = 0;
    /// A filled rectangle.
    virtual void DrawRectangle(double left, double top, double right, double bottom) = 0;

    // Events; the window that owns the surface may set them.

    /// Raised for each new page, also for pages begun by text overflow, but not for the first one.
    std::function<void()> onNewPage;
    /// Raised after a page's header is written and before its footer.
    std::function<void()> onFooter;

    // Properties.

    virtual void setProperty(SurfaceProperty property, const QVariant& value) = 0;
    [[nodiscard]] virtual QVariant property(SurfaceProperty property) const = 0;

    void BackColor(qint32 color) { setProperty(SurfaceProperty::BackColor, color); }
    void BrushColor(qint32 color) { setProperty(SurfaceProperty::BrushColor, color); }
    void BrushStyle(qint32 style) { setProperty(SurfaceProperty::BrushStyle, style); }
    void Columns(qint32 count) { setProperty(SurfaceProperty::Columns, count); }
    void CurrentX(double twips) { setProperty(SurfaceProperty::CurrentX, twips); }
    void CurrentY(double twips) { setProperty(SurfaceProperty::CurrentY, twips); }
    void ExportFile(const QString& path) { setProperty(SurfaceProperty::ExportFile, path); }
    void FontBold(bool on) { setProperty(SurfaceProperty::FontBold, on); }
    void FontItalic(bool on) { setProperty(SurfaceProperty::FontItalic, on); }
    void FontName(const QString& face) { setProperty(SurfaceProperty::FontName, face); }
    void FontSize(double points) { setProperty(SurfaceProperty::FontSize, points); }
    void FontUnderline(bool on) { setProperty(SurfaceProperty::FontUnderline, on); }
    void Footer(const QString& text) { setProperty(SurfaceProperty::Footer, text); }
    void HdrColor(qint32 color) { setProperty(SurfaceProperty::HdrColor, color); }
    void HdrFontBold(bool on) { setProperty(SurfaceProperty::HdrFontBold, on); }
    void HdrFontItalic(bool on) { setProperty(SurfaceProperty::HdrFontItalic, on); }
    void HdrFontName(const QString& face) { setProperty(SurfaceProperty::HdrFontName, face); }
    void HdrFontSize(double points) { setProperty(SurfaceProperty::HdrFontSize, points); }
    void HdrFontStrikethru(bool on) { setProperty(SurfaceProperty::HdrFontStrikethru, on); }
    void HdrFontUnderline(bool on) { setProperty(SurfaceProperty::HdrFontUnderline, on); }
    void Header(const QString& text) { setProperty(SurfaceProperty::Header, text); }
    void IndentFirst(double twips) { setProperty(SurfaceProperty::IndentFirst, twips); }
    void IndentLeft(double twips) { setProperty(SurfaceProperty::IndentLeft, twips); }
    void IndentRight(double twips) { setProperty(SurfaceProperty::IndentRight, twips); }
    void IndentTab(double twips) { setProperty(SurfaceProperty::IndentTab, twips); }
    void MarginBottom(double twips) { setProperty(SurfaceProperty::MarginBottom, twips); }
    void MarginFooter(double twips) { setProperty(SurfaceProperty::MarginFooter, twips); }
    void MarginHeader(double twips) { setProperty(SurfaceProperty::MarginHeader, twips); }
    void MarginLeft(double twips) { setProperty(SurfaceProperty::MarginLeft, twips); }
    void MarginRight(double twips) { setProperty(SurfaceProperty::MarginRight, twips); }
    void MarginTop(double twips) { setProperty(SurfaceProperty::MarginTop, twips); }
    void PageBorder(qint32 style) { setProperty(SurfaceProperty::PageBorder, style); }
    void PenColor(qint32 color) { setProperty(SurfaceProperty::PenColor, color); }
    void PenStyle(qint32 style) { setProperty(SurfaceProperty::PenStyle, style); }
    void PenWidth(double twips) { setProperty(SurfaceProperty::PenWidth, twips); }
    void PreviewPage(qint16 page) { setProperty(SurfaceProperty::PreviewPage, page); }
    void SpaceAfter(double twips) { setProperty(SurfaceProperty::SpaceAfter, twips); }
    void TableBorder(qint32 style) { setProperty(SurfaceProperty::TableBorder, style); }
    void TextAlign(qint32 alignment) { setProperty(SurfaceProperty::TextAlign, alignment); }
    void TextAngle(double tenthsOfDegrees) { setProperty(SurfaceProperty::TextAngle, tenthsOfDegrees); }
    void TextColor(qint32 color) { setProperty(SurfaceProperty::TextColor, color); }
    void ToolTipText(const QString& text) { setProperty(SurfaceProperty::ToolTipText, text); }
    void X1(double twips) { setProperty(SurfaceProperty::X1, twips); }
    void X2(double twips) { setProperty(SurfaceProperty::X2, twips); }
    void Y1(double twips) { setProperty(SurfaceProperty::Y1, twips); }
    void Y2(double twips) { setProperty(SurfaceProperty::Y2, twips); }
    void Zoom(double percent) { setProperty(SurfaceProperty::Zoom, percent); }
    void ZoomMode(qint32 mode) { setProperty(SurfaceProperty::ZoomMode, mode); }

    // What builders and windows read back.

    [[nodiscard]] qint32 BrushColor() const { return property(SurfaceProperty::BrushColor).toInt(); }
    [[nodiscard]] double CurrentX() const { return property(SurfaceProperty::CurrentX).toDouble(); }
    [[nodiscard]] double CurrentY() const { return property(SurfaceProperty::CurrentY).toDouble(); }
    [[nodiscard]] qint16 PreviewPage() const {
        return static_cast<qint16>(property(SurfaceProperty::PreviewPage).toInt());
    }
    [[nodiscard]] double Zoom() const { return property(SurfaceProperty::Zoom).toDouble(); }
    [[nodiscard]] qint32 ZoomMode() const { return property(SurfaceProperty::ZoomMode).toInt(); }
    /// The name of `Font`: the face that the surface was set up with.
    [[nodiscard]] virtual QString FontFace() const = 0;
};
