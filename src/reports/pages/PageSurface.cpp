#include "reports/pages/PageSurface.h"

#include "core/Global.h"
#include "core/Printer.h"
#include "reports/pages/DocumentFiles.h"
#include "reports/pages/HtmlWriter.h"
#include "reports/pages/PagePainter.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

using Property = SurfaceProperty;

constexpr qint32 inch = 1440;
/// From the text area to the rule above or below it, and from that rule to the header or footer.
constexpr double ruleGap = 90;
constexpr double runningTextGap = 60;
/// No place on a page lies further out than this, so that no sum or device leaves its range.
constexpr double farthest = 1'000'000;
/// Room for a text that nothing limits.
constexpr double unlimited = farthest;
/// Wedges this close to a full turn (radians) are empty ones, whose two angles differ by rounding only.
constexpr double angleTolerance = 1e-6;
constexpr qint32 borderAboveAndBelow = 3;

QColor fromColorValue(qint32 value) {
    return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

Qt::PenStyle penStyleOf(qint32 style) {
    constexpr std::array styles{Qt::SolidLine,   Qt::DashLine,       Qt::DotLine,
                                Qt::DashDotLine, Qt::DashDotDotLine, Qt::NoPen};
    return style >= 0 && static_cast<std::size_t>(style) < styles.size()
               ? styles[static_cast<std::size_t>(style)]
               : Qt::SolidLine;
}

double sweepOf(double from, double to) {
    constexpr double turn = 2 * Global::PI;
    double sweep = std::fmod(to - from, turn);
    if (sweep < 0) {
        sweep += turn;
    }
    return sweep > turn - angleTolerance ? 0 : sweep;
}

double pointsOf(double size) {
    return std::clamp(size, 1.0, 1000.0);
}

double bounded(double value) {
    return std::isfinite(value) ? std::clamp(value, -farthest, farthest) : 0;
}

} // namespace

PageSurface::PageSurface(QSizeF pageSize) {
    document_.pageSize = pageSize;
    // Until a report sets its own: an inch of margin, plain text of 11 points, white paper.
    set(Property::BackColor, 0xFFFFFF);
    for (const Property face : {Property::FontName, Property::HdrFontName}) {
        set(face, PageFonts::defaultFace());
    }
    for (const Property points : {Property::FontSize, Property::HdrFontSize}) {
        set(points, 11);
    }
    for (const Property margin :
         {Property::MarginBottom, Property::MarginLeft, Property::MarginRight, Property::MarginTop}) {
        set(margin, inch);
    }
    set(Property::IndentTab, inch / 2);
    set(Property::PenWidth, 1);
    set(Property::TextAlign, 6);
    set(Property::Zoom, 100);
    set(Property::ZoomMode, 4);
}

QSizeF PageSurface::systemPageSize() {
    const bool letter = Global::services().locale.measurementSystem() == QLocale::ImperialUSSystem;
    return letter ? QSizeF(12240, 15840) : QSizeF(11906, 16838);
}

void PageSurface::StartDoc() {
    if (raising_ != Event::None) {
        return; // an event's handler may draw on its page, not begin another document
    }
    document_.pages.clear();
    draft_.clear();
    open_ = true;
    headerBegins_ = true;
    set(Property::PreviewPage, 1);
    startPage();
    notify();
}

void PageSurface::EndDoc() {
    if (!open_ || raising_ != Event::None) {
        return;
    }
    finishPage();
    open_ = false;
    document_.pages = std::move(draft_);
    draft_.clear();
    notify();
    const QString file = value(Property::ExportFile).toString();
    if (!file.isEmpty()) {
        writeHtml(document_, file);
    }
}

void PageSurface::NewPage() {
    if (!open_ || raising_ == Event::Footer) {
        return;
    }
    finishPage();
    startPage();
    if (raising_ == Event::None && onNewPage) {
        const QScopedValueRollback guard(raising_, Event::NewPage);
        const auto handler = onNewPage; // a copy, for the handler may take itself away
        handler();
    }
}

qint16 PageSurface::PageCount() const {
    constexpr std::size_t most = std::numeric_limits<qint16>::max();
    return static_cast<qint16>(std::min(document_.pages.size(), most));
}

bool PageSurface::PrintDialog(qint32 /*mode*/) {
    return Global::service(&Services::printer).choose();
}

void PageSurface::PrintDoc() {
    if (document_.pages.empty()) {
        return;
    }
    Global::service(&Services::printer)
        .print({.pageCount = PageCount(),
                .pageSize = document_.pageSize,
                .paint = [this](QPainter& painter,
                                qint32 page) { paintPage(painter, document_, page, PaintTarget::Paper); },
                .title = titleOf(document_)});
}

void PageSurface::Write(const QString& text) {
    if (!open_) {
        return;
    }
    const bool positioned = positioned_;
    const double left =
        positioned ? currentX_ : bounded(number(Property::MarginLeft) + number(Property::IndentLeft));
    const double right =
        document_.pageSize.width() - number(Property::MarginRight) - number(Property::IndentRight);
    LineLimits limits;
    limits.width = positioned && left >= right ? unlimited : right - left;
    limits.firstIndent = positioned ? 0 : number(Property::IndentFirst);
    limits.tabDistance = number(Property::IndentTab);
    limits.wholeWords = positioned;
    const double spaceAfter = number(Property::SpaceAfter);
    const auto laid = lay(text, bodyStyle(), limits);
    positioned_ = false;
    for (qint32 line = 0; line < laid->lineCount(); ++line) {
        makeRoom(laid->lineHeight());
        add(TextLine{laid, line, {left, currentY_}, positioned});
        currentY_ += laid->lineHeight();
    }
    currentY_ = bounded(currentY_ + spaceAfter);
    positioned_ = false; // also where a handler of the new page has set a position
}

void PageSurface::TextBox(const QString& text, double x, double y, double width, double /*height*/) {
    if (!open_) {
        return;
    }
    LineLimits limits;
    limits.width = width > 0 ? bounded(width) : unlimited;
    limits.tabDistance = number(Property::IndentTab);
    add(TurnedText{
        lay(text, bodyStyle(), limits), {bounded(x), bounded(y)}, number(Property::TextAngle) / 10});
}

void PageSurface::DrawCircle(double x, double y, double radius) {
    add(Disc{{bounded(x), bounded(y)}, std::abs(bounded(radius)), shapeStyle()});
}

void PageSurface::DrawCircle(double x, double y, double radius, double angle1, double angle2) {
    const double from = bounded(angle1);
    add(Wedge{{bounded(x), bounded(y)},
              std::abs(bounded(radius)),
              from,
              sweepOf(from, bounded(angle2)),
              shapeStyle()});
}

void PageSurface::DrawRectangle(double left, double top, double right, double bottom) {
    const QPointF topLeft(bounded(left), bounded(top));
    add(Rectangle{QRectF(topLeft, QPointF(bounded(right), bounded(bottom))).normalized(), shapeStyle()});
}

void PageSurface::setProperty(SurfaceProperty property, const QVariant& value) {
    set(property, value);
    switch (property) {
    case Property::CurrentX:
        currentX_ = bounded(value.toDouble());
        positioned_ = true;
        break;
    case Property::CurrentY:
        currentY_ = bounded(value.toDouble());
        break;
    case Property::Header:
        headerBegins_ = true;
        break;
    case Property::Zoom:
        set(Property::ZoomMode, 0);
        notify();
        break;
    case Property::PreviewPage:
    case Property::ToolTipText:
    case Property::ZoomMode:
        notify();
        break;
    default:
        break;
    }
}

QVariant PageSurface::property(SurfaceProperty property) const {
    switch (property) {
    case Property::CurrentX:
        return positioned_ ? currentX_ : number(Property::MarginLeft);
    case Property::CurrentY:
        return currentY_;
    case Property::PreviewPage: {
        const qint32 last = open_ ? 1 : PageCount();
        return std::clamp(value(property).toInt(), std::min(last, 1), last);
    }
    case Property::Zoom: {
        const bool fits = value(Property::ZoomMode).toInt() != 0 && shownZoom_ > 0;
        return std::clamp(fits ? shownZoom_ : number(property), 1.0, 1000.0);
    }
    default:
        return value(property);
    }
}

const QVariant& PageSurface::value(SurfaceProperty property) const {
    return values_[static_cast<std::size_t>(property)];
}

double PageSurface::number(SurfaceProperty property) const {
    return bounded(value(property).toDouble());
}

QColor PageSurface::color(SurfaceProperty property) const {
    return fromColorValue(value(property).toInt());
}

void PageSurface::set(Property property, const QVariant& value) {
    values_[static_cast<std::size_t>(property)] = value;
}

TextStyle PageSurface::bodyStyle() {
    TextStyle style;
    style.face = fonts_.resolve(value(Property::FontName).toString());
    style.points = pointsOf(number(Property::FontSize));
    style.bold = flag(Property::FontBold);
    style.italic = flag(Property::FontItalic);
    style.underline = flag(Property::FontUnderline);
    style.color = color(Property::TextColor);
    return style;
}

TextStyle PageSurface::headerStyle() {
    TextStyle style;
    style.face = fonts_.resolve(value(Property::HdrFontName).toString());
    style.points = pointsOf(number(Property::HdrFontSize));
    style.bold = flag(Property::HdrFontBold);
    style.italic = flag(Property::HdrFontItalic);
    style.underline = flag(Property::HdrFontUnderline);
    style.strikethrough = flag(Property::HdrFontStrikethru);
    style.color = color(Property::HdrColor);
    return style;
}

ShapeStyle PageSurface::shapeStyle() const {
    ShapeStyle style;
    if (value(Property::BrushStyle).toInt() == 0) {
        style.fill = color(Property::BrushColor);
    }
    style.outline = color(Property::PenColor);
    style.outlineWidth = number(Property::PenWidth);
    style.outlineStyle = penStyleOf(value(Property::PenStyle).toInt());
    return style;
}

std::shared_ptr<const LaidText> PageSurface::lay(const QString& text, const TextStyle& style,
                                                 const LineLimits& limits) {
    return std::make_shared<const LaidText>(text, style, fonts_.font(style), limits);
}

void PageSurface::add(PageItem item) {
    if (open_) {
        draft_.back().items.push_back(std::move(item));
    }
}

void PageSurface::makeRoom(double lineHeight) {
    const double bottom = document_.pageSize.height() - number(Property::MarginBottom);
    // A line that does not fit a whole page either is set where it is, or pages would never end.
    if (currentY_ + lineHeight > bottom && currentY_ > number(Property::MarginTop)) {
        NewPage();
    }
}

void PageSurface::startPage() {
    draft_.emplace_back();
    currentY_ = number(Property::MarginTop);
    positioned_ = false;
}

void PageSurface::finishPage() {
    Page& page = draft_.back();
    page.background = color(Property::BackColor);
    addRules(page);
    page.header = runningText(Property::Header);
    page.headerBegins = std::exchange(headerBegins_, false);
    constexpr std::array headerFont{Property::HdrColor,         Property::HdrFontName,
                                    Property::HdrFontSize,      Property::HdrFontBold,
                                    Property::HdrFontItalic,    Property::HdrFontUnderline,
                                    Property::HdrFontStrikethru};
    const auto kept = values_;
    if (onFooter && raising_ == Event::None) {
        const QScopedValueRollback guard(raising_, Event::Footer);
        const auto handler = onFooter; // a copy, for the handler may take itself away
        handler();
    }
    page.footer = runningText(Property::Footer);
    for (const Property property : headerFont) { // or the next page's header would stand in the footer's font
        set(property, kept[static_cast<std::size_t>(property)]);
    }
}

RunningText PageSurface::runningText(Property property) {
    const QString text = value(property).toString();
    if (text.isEmpty()) {
        return {};
    }
    const double pageHeight = document_.pageSize.height();
    const double left = number(Property::MarginLeft);
    LineLimits limits;
    limits.width = document_.pageSize.width() - left - number(Property::MarginRight);
    limits.tabDistance = number(Property::IndentTab);
    RunningText running;
    running.text = lay(text, headerStyle(), limits);
    const double lineHeight = running.text->lineHeight();
    const bool atTop = property == Property::Header;
    // A margin of 0 means close to the text area: at the paper's edge no printer would print it.
    const double edge = number(atTop ? Property::MarginHeader : Property::MarginFooter);
    const double band =
        number(atTop ? Property::MarginTop : Property::MarginBottom) - ruleGap - runningTextGap;
    const double room = band - std::max(edge, 0.0);
    running.shownLines = std::clamp(static_cast<qint32>(room / lineHeight), 1, running.text->lineCount());
    const double height = running.shownLines * lineHeight;
    const double fromEdge = std::max(edge > 0 ? edge : band - height, 0.0);
    running.topLeft = {left, atTop ? fromEdge : pageHeight - fromEdge - height};
    return running;
}

void PageSurface::addRules(Page& page) const {
    if (value(Property::PageBorder).toInt() != borderAboveAndBelow) {
        return;
    }
    const double left = number(Property::MarginLeft);
    const double right = document_.pageSize.width() - number(Property::MarginRight);
    const double above = number(Property::MarginTop);
    const double below = number(Property::MarginBottom);
    if (above > 0) {
        page.rules.emplace_back(left, above - ruleGap, right, above - ruleGap);
    }
    if (below > 0) {
        const double y = document_.pageSize.height() - below + ruleGap;
        page.rules.emplace_back(left, y, right, y);
    }
}

void PageSurface::notify() const {
    if (onViewChanged) {
        onViewChanged();
    }
}
